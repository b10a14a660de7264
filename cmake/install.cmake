# Where `cmake --install` puts things, and what belongs to no target. Programs, data and icons are
# installed beside their targets.

include(GNUInstallDirs)
if(NOT CMAKE_INSTALL_DATADIR STREQUAL "share" OR NOT CMAKE_INSTALL_BINDIR STREQUAL "bin")
    message(FATAL_ERROR "The programs find their data at ../share/horavex from their own folder")
endif()

# What the running program says on the session bus. No service file goes with it: to ask for a
# status must not start a program, nor bring back one that was ended.
install(FILES docs/org.horavex.PrayerTimes.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/interfaces)

set(documents ${CMAKE_INSTALL_DATADIR}/doc/horavex)
install(FILES LICENSE CHANGELOG.md docs/bus.md docs/library.md docs/service.md docs/status-bars.md
              docs/terminal.md
        DESTINATION ${documents})
# Whose the data are, in the folders that the texts name.
foreach(file data/README.md data/gazetteer/LICENSE.md data/athan/README.md)
    cmake_path(GET file PARENT_PATH place)
    install(FILES ${file} DESTINATION ${documents}/${place})
endforeach()
