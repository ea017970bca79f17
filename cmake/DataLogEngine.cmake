# The engine the tree is built with. Everything else links the neutral names defined here, so that
# no other file of the build has to ask which Qt it is:
#   datalog_qt_core, datalog_qt_gui (widgets included), datalog_qt_declarative, datalog_qt_test,
#   datalog_qwt
# They are imported ones: an installed package finds the same libraries by this same file.
foreach(part core gui declarative test)
    add_library(datalog_qt_${part} INTERFACE IMPORTED GLOBAL)
endforeach()

if(DATALOG_QT EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Qml Quick)
    target_link_libraries(datalog_qt_core INTERFACE Qt5::Core)
    target_link_libraries(datalog_qt_gui INTERFACE Qt5::Core Qt5::Gui Qt5::Widgets)
    target_link_libraries(datalog_qt_declarative INTERFACE Qt5::Qml Qt5::Quick Qt5::Widgets)
    if(DATALOG_BUILD_TESTS)
        find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
        target_link_libraries(datalog_qt_test INTERFACE Qt5::Test)
    endif()
elseif(DATALOG_QT EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtDeclarative)
    target_link_libraries(datalog_qt_core INTERFACE Qt4::QtCore)
    target_link_libraries(datalog_qt_gui INTERFACE Qt4::QtCore Qt4::QtGui)
    target_link_libraries(datalog_qt_declarative INTERFACE Qt4::QtDeclarative Qt4::QtGui)
    if(DATALOG_BUILD_TESTS)
        find_package(Qt4 4.8 REQUIRED QtTest)
        target_link_libraries(datalog_qt_test INTERFACE Qt4::QtTest)
    endif()
else()
    message(FATAL_ERROR "DATALOG_QT must be 4 or 5, not ${DATALOG_QT}")
endif()

find_path(QWT_INCLUDE_DIR qwt_plot.h PATH_SUFFIXES qwt qwt6 qwt-qt${DATALOG_QT})
find_library(QWT_LIBRARY NAMES qwt-qt${DATALOG_QT} qwt)
if(NOT QWT_INCLUDE_DIR OR NOT QWT_LIBRARY)
    message(FATAL_ERROR "Qwt 6.1 was not found; set QWT_INCLUDE_DIR and QWT_LIBRARY")
endif()
add_library(datalog_qwt INTERFACE IMPORTED GLOBAL)
target_include_directories(datalog_qwt SYSTEM INTERFACE "${QWT_INCLUDE_DIR}")
target_link_libraries(datalog_qwt INTERFACE "${QWT_LIBRARY}" datalog_qt_gui)
