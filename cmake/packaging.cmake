# Installation and the Debian package, included from the top CMakeLists.txt outside the sanitizer
# build.
# Installed, the game follows Debian's layout for games: the executables in PREFIX/games, the
# data in PREFIX/share/games/talvero (read-only; the game finds it from its own executable,
# see services/program_dir.h), a desktop entry, icons, AppStream metadata, manual pages and
# the package's documentation. `cmake --install build` installs for the user, under ~/.local,
# unless --prefix says otherwise; `cmake --build build --target package` writes
# build/talvero_<version>_<arch>.deb for /usr.
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT AND DEFINED ENV{HOME})
  set(CMAKE_INSTALL_PREFIX "$ENV{HOME}/.local" CACHE PATH "Installation prefix" FORCE)
endif()
set(TALVERO_APP_ID "org.example.talvero" CACHE STRING "AppStream id, also the desktop entry's name")
set(TALVERO_HOMEPAGE "https://talvero.example.org" CACHE STRING
    "Home page; the AppStream screenshots are docs/*.png served under HOMEPAGE/screenshots/")
set(TALVERO_GENERATED ${CMAKE_BINARY_DIR}/install-files)
file(MAKE_DIRECTORY ${TALVERO_GENERATED})

install(TARGETS talvero talvero-odds RUNTIME DESTINATION games)
install(TARGETS talvero-network talvero-coach LIBRARY DESTINATION lib/games/talvero)
install(DIRECTORY ${TALVERO_DIR}/ DESTINATION share/games/talvero
        FILES_MATCHING PATTERN "*.mid" PATTERN "*.htm")

# The desktop entry starts the executable where it was installed: its Exec line is written at
# install time, from the prefix of that installation (never the staging DESTDIR).
install(CODE "set(TALVERO_DESKTOP_IN \"${CMAKE_SOURCE_DIR}/assets/talvero.desktop.in\")
              set(TALVERO_GENERATED \"${TALVERO_GENERATED}\")
              set(TALVERO_APP_ID \"${TALVERO_APP_ID}\")")
install(CODE [[
  set(TALVERO_LAUNCHER "${CMAKE_INSTALL_PREFIX}/games/talvero")
  string(MD5 TALVERO_INSTALL_KEY "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  set(TALVERO_DESKTOP "${TALVERO_GENERATED}/desktop-${TALVERO_INSTALL_KEY}")
  configure_file("${TALVERO_DESKTOP_IN}" "${TALVERO_DESKTOP}" @ONLY)
  file(INSTALL "${TALVERO_DESKTOP}" DESTINATION "${CMAKE_INSTALL_PREFIX}/share/applications"
       RENAME "${TALVERO_APP_ID}.desktop")
  file(REMOVE "${TALVERO_DESKTOP}")
]])

configure_file(assets/talvero.metainfo.xml.in ${TALVERO_GENERATED}/${TALVERO_APP_ID}.metainfo.xml @ONLY)
install(FILES ${TALVERO_GENERATED}/${TALVERO_APP_ID}.metainfo.xml DESTINATION share/metainfo)

# The icon: our SVG, and PNG pictures rendered from it at build time (by talvero-render-icon,
# assets/icons).
set(TALVERO_ICON_SIZES 16 22 24 32 48 64 128 256)
set(TALVERO_ICON_PNGS)
foreach(size ${TALVERO_ICON_SIZES})
  list(APPEND TALVERO_ICON_PNGS ${TALVERO_GENERATED}/icons/${size}x${size}.png)
  install(FILES ${TALVERO_GENERATED}/icons/${size}x${size}.png
          DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME talvero.png)
endforeach()
add_custom_command(OUTPUT ${TALVERO_ICON_PNGS}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${TALVERO_GENERATED}/icons
  COMMAND talvero-render-icon ${CMAKE_SOURCE_DIR}/assets/icons/talvero.svg ${TALVERO_GENERATED}/icons
          ${TALVERO_ICON_SIZES}
  DEPENDS talvero-render-icon ${CMAKE_SOURCE_DIR}/assets/icons/talvero.svg
  COMMENT "Rendering the icon")
install(FILES assets/icons/talvero.svg DESTINATION share/icons/hicolor/scalable/apps)

# Manual pages and the changelog, compressed as Debian wants them.
set(TALVERO_COMPRESSED)
foreach(f man/talvero.6 man/talvero-odds.6 debian/changelog)
  get_filename_component(n ${f} NAME)
  add_custom_command(OUTPUT ${TALVERO_GENERATED}/${n}.gz
    COMMAND gzip -9n -c ${CMAKE_SOURCE_DIR}/assets/${f} > ${TALVERO_GENERATED}/${n}.gz
    DEPENDS ${CMAKE_SOURCE_DIR}/assets/${f}
    COMMENT "Compressing ${f}")
  list(APPEND TALVERO_COMPRESSED ${TALVERO_GENERATED}/${n}.gz)
endforeach()
add_custom_target(talvero_install_files ALL DEPENDS ${TALVERO_ICON_PNGS} ${TALVERO_COMPRESSED})
install(FILES ${TALVERO_GENERATED}/talvero.6.gz ${TALVERO_GENERATED}/talvero-odds.6.gz
        DESTINATION share/man/man6)
install(FILES ${TALVERO_GENERATED}/changelog.gz assets/debian/copyright DESTINATION share/doc/talvero)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME talvero)
set(CPACK_PACKAGE_VENDOR "The TALVERO developers")
set(CPACK_PACKAGE_CONTACT "The TALVERO developers <talvero@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "video poker with a live probability panel")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The install scripts run with the final prefix (the staging directory comes as DESTDIR),
# so that the desktop entry names /usr/games/talvero.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TALVERO_HOMEPAGE})
# The summary line comes from CPACK_PACKAGE_DESCRIPTION_SUMMARY; CPack indents these lines
# and writes the empty one as " .".
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION [=[TALVERO is a single-player video poker game in French and English, in one
1024x768 window. JEU 1 is classic five-card draw with a pay table, a double-up
and an automatic mode; JEU 2 lays 25 cards in a 5x5 grid whose twelve lines
are each priced as a hand. Beside the pay table of JEU 1 a permanent panel
counts, after every hold, how many draws make each hand class. A coach
window (F2) gives the exact expected value of every hold, the verdict on each
hold played and what the mistakes of the session cost.

The package also holds talvero-odds, which gives the exact odds of the 32
holds of a hand and the return of the classic game.]=])
# The libraries the executables link come from dpkg-shlibdeps. FluidSynth is opened when the
# music starts, so its package is named here, found from its shared object; so is what the
# game reads at run time: the Qt plugins, the card deck, the fonts and the SoundFont.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(TALVERO_RUNTIME_PACKAGES qt6-qpa-plugins kdegames-card-data-kf5 fonts-liberation2 timgm6mb-soundfont)
if(TALVERO_FLUIDSYNTH_SONAME)
  execute_process(COMMAND dpkg-query -S "*/${TALVERO_FLUIDSYNTH_SONAME}" OUTPUT_VARIABLE TALVERO_FLUIDSYNTH_OWNER
                  ERROR_QUIET)
  string(REGEX MATCH "^[^:]+" TALVERO_FLUIDSYNTH_PACKAGE "${TALVERO_FLUIDSYNTH_OWNER}")
  if(NOT TALVERO_FLUIDSYNTH_PACKAGE)
    set(TALVERO_FLUIDSYNTH_PACKAGE libfluidsynth3)
  endif()
  list(PREPEND TALVERO_RUNTIME_PACKAGES ${TALVERO_FLUIDSYNTH_PACKAGE})
endif()
list(JOIN TALVERO_RUNTIME_PACKAGES ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
include(CPack)

# The package, unpacked and started; and `cmake --install` under a prefix of the test's own.
add_test(NAME Package.DebianPackageIsCleanAndRunsUnpackedAnywhere
         COMMAND ${CMAKE_SOURCE_DIR}/tests/services/debian_package.sh ${CMAKE_BINARY_DIR} ${PROJECT_VERSION})
set_tests_properties(Package.DebianPackageIsCleanAndRunsUnpackedAnywhere PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
