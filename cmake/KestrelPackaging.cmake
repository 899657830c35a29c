# `cmake --install` puts the bundle under lib/, a launcher on the path, and what a desktop wants to know about it; CPack makes a
# Debian package of that.

include(GNUInstallDirs)

install(DIRECTORY "${KESTREL_BUNDLE_DIR}" DESTINATION "${CMAKE_INSTALL_LIBDIR}" USE_SOURCE_PERMISSIONS)
# Names on the path are links into the bundle, which finds itself by its program's real place.
foreach(launcher kestrel=MacOS/Kestrel kestrel-cli=Helpers/kestrel-cli)
    string(REPLACE "=" ";" launcher "${launcher}")
    list(POP_FRONT launcher name place)
    install(CODE "
        set(launcher \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${name}\")
        get_filename_component(folder \"\${launcher}\" DIRECTORY)
        file(MAKE_DIRECTORY \"\${folder}\")
        file(RELATIVE_PATH program \"/${CMAKE_INSTALL_BINDIR}\"
             \"/${CMAKE_INSTALL_LIBDIR}/Kestrel.app/Contents/${place}\")
        file(CREATE_LINK \"\${program}\" \"\${launcher}\" SYMBOLIC)
        message(STATUS \"Installing: \${launcher}\")")
endforeach()
install(FILES packaging/kestrel-cli.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(DIRECTORY "${KESTREL_RESOURCES_DIR}/icons/" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
install(FILES packaging/com.tarnwell.kestrel.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES packaging/com.tarnwell.kestrel.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrel)
set(CPACK_PACKAGE_VENDOR "Tarnwell Software, Inc.")
set(CPACK_PACKAGE_CONTACT "Tarnwell Software <support@tarnwell.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ca-certificates, dvdauthor, ffmpeg, fonts-liberation, libqt6sql6-sqlite, libva-drm2, libva2, mediainfo, qt6-image-formats-plugins, qt6-qpa-plugins, qt6-translations-l10n, xdg-utils, yt-dlp")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "pipewire, wireplumber, xdg-desktop-portal")
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
