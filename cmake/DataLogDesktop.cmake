# What a desktop needs to know of the viewer, and the viewer itself, installed.
find_package(Python3 COMPONENTS Interpreter REQUIRED)
set(desktop_dir "${CMAKE_SOURCE_DIR}/packaging/desktop")
set(icon_dir "${CMAKE_SOURCE_DIR}/packaging/icons")
set(icon_destination "${CMAKE_INSTALL_DATADIR}/icons/hicolor")

install(TARGETS datalog-viewer RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES "${desktop_dir}/datalog-viewer.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${desktop_dir}/org.datalog.viewer.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${desktop_dir}/datalog.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(FILES "${icon_dir}/datalog-viewer.svg" DESTINATION "${icon_destination}/scalable/apps")
foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES "${icon_dir}/datalog-viewer-${size}.png"
        DESTINATION "${icon_destination}/${size}x${size}/apps" RENAME datalog-viewer.png)
endforeach()

# The man page says what the viewer's own --help says.
set(man_page "${CMAKE_BINARY_DIR}/man/datalog-viewer.1")
set(man_dir "${CMAKE_SOURCE_DIR}/viewer/man")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/man")
add_custom_command(OUTPUT "${man_page}"
    COMMAND "${Python3_EXECUTABLE}" "${man_dir}/make_man.py" "$<TARGET_FILE:datalog-viewer>"
        "${PROJECT_VERSION}" "${man_dir}/datalog-viewer.1.in" "${man_page}"
    DEPENDS datalog-viewer "${man_dir}/make_man.py" "${man_dir}/datalog-viewer.1.in"
    COMMENT "Writing the man page"
    VERBATIM)
add_custom_target(datalog_man ALL DEPENDS "${man_page}")
install(FILES "${man_page}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
