# How targets of this tree are made: one place for warnings, sanitizers and the include path.

add_library(datalog_options INTERFACE)
target_compile_options(datalog_options INTERFACE -Wall -Wextra -Wpedantic)
if(DATALOG_WERROR)
    target_compile_options(datalog_options INTERFACE -Werror)
endif()
if(DATALOG_SANITIZE)
    target_compile_options(datalog_options INTERFACE
        -fsanitize=${DATALOG_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(datalog_options INTERFACE -fsanitize=${DATALOG_SANITIZE})
endif()
# What is released is hardened: checked copies, guarded stacks, and tables that are read-only once
# the program runs. Sanitizers bring their own checks.
if(CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT DATALOG_SANITIZE)
    target_compile_options(datalog_options INTERFACE
        -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong)
    target_link_options(datalog_options INTERFACE -Wl,-z,relro,-z,now)
endif()
# Text never turns into QString by accident, on either engine.
target_compile_definitions(datalog_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_ASCII)

# datalog_library(NAME SOURCES file... LINK target...)
# A static library for one folder of src/. Headers are listed with the sources so that moc sees them.
function(datalog_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/src>"
        "$<INSTALL_INTERFACE:${DATALOG_INSTALL_HEADERS}>")
    target_link_libraries(${name}
        PUBLIC ${ARG_LINK} PRIVATE "$<BUILD_INTERFACE:datalog_options>")
    # What src/ consists of is for C++ users, too.
    if(CMAKE_CURRENT_SOURCE_DIR MATCHES "^${CMAKE_SOURCE_DIR}/src/")
        datalog_install_library(${name})
    endif()
endfunction()

# datalog_test(NAME SOURCES file... LINK target... [SERIAL] [BUS] [ENVIRONMENT VAR=value...])
# A QtTest program, run by ctest under NAME. SERIAL is for tests that need the display for
# themselves (focus, activation), BUS for those that hear what assistive tools are told, which takes
# a session with a bus for such tools.
function(datalog_test name)
    cmake_parse_arguments(ARG "SERIAL;BUS" "" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE
        DATALOG_SOURCE_DIR="${CMAKE_SOURCE_DIR}" DATALOG_BINARY_DIR="${CMAKE_BINARY_DIR}")
    target_link_libraries(${name} PRIVATE ${ARG_LINK} datalog_qt_test datalog_options)
    if(DATALOG_SANITIZE)
        target_sources(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests/support/KeepLibraries.cpp")
    endif()
    if(ARG_BUS)
        add_test(NAME ${name} COMMAND
            "${CMAKE_SOURCE_DIR}/tests/support/with-accessibility-bus" $<TARGET_FILE:${name}>)
        list(APPEND ARG_ENVIRONMENT QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1)
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    if(ARG_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
    endif()
    if(ARG_ENVIRONMENT)
        set_tests_properties(${name} PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT}")
    endif()
endfunction()
