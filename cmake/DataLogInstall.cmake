# Where things are installed, below any prefix, and how the libraries become a CMake package.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

if(DATALOG_QT EQUAL 4)
    set(default_qml_dir "${CMAKE_INSTALL_LIBDIR}/qt4/imports")
else()
    set(default_qml_dir "${CMAKE_INSTALL_LIBDIR}/qt5/qml")
endif()
set(DATALOG_INSTALL_QMLDIR "${default_qml_dir}" CACHE STRING
    "Import directory, below the prefix, that the QML module is installed into")
set(DATALOG_INSTALL_HEADERS "${CMAKE_INSTALL_INCLUDEDIR}/DataLog")
set(DATALOG_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/DataLog")

# datalog_install_library(TARGET)
# Gives a library to C++ users: as DataLog::parsing where the tree says datalog_parsing.
function(datalog_install_library target)
    string(REPLACE "datalog_" "" export_name ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${export_name})
    install(TARGETS ${target} EXPORT DataLogTargets
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endfunction()

# datalog_install_package()
# What find_package(DataLog) finds, and the headers.
function(datalog_install_package)
    install(DIRECTORY "${CMAKE_SOURCE_DIR}/src/" DESTINATION "${DATALOG_INSTALL_HEADERS}"
        FILES_MATCHING PATTERN "*.h" PATTERN images EXCLUDE)
    install(EXPORT DataLogTargets NAMESPACE DataLog:: DESTINATION "${DATALOG_INSTALL_CMAKEDIR}")
    set(config "${CMAKE_BINARY_DIR}/cmake/DataLogConfig.cmake")
    configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/DataLogConfig.cmake.in" "${config}"
        INSTALL_DESTINATION "${DATALOG_INSTALL_CMAKEDIR}")
    write_basic_package_version_file("${CMAKE_BINARY_DIR}/cmake/DataLogConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${config}" "${CMAKE_BINARY_DIR}/cmake/DataLogConfigVersion.cmake"
        "${CMAKE_SOURCE_DIR}/cmake/DataLogEngine.cmake"
        DESTINATION "${DATALOG_INSTALL_CMAKEDIR}")
endfunction()
