# What an installation holds, and the Debian package of it (cpack -G DEB). packaging/README.md says which
# file is what.

include(GNUInstallDirs)
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/packaging")
set(application com.velor.WebCreator)
set(own_data "${CMAKE_INSTALL_DATADIR}/velor-web-creator")
set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")

# The release's date: that of the commit in a checkout, of the list of changes elsewhere.
execute_process(COMMAND git -C "${PROJECT_SOURCE_DIR}" log -1 --format=%cI OUTPUT_VARIABLE released
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE no_checkout)
if(no_checkout)
  file(TIMESTAMP "${PROJECT_SOURCE_DIR}/CHANGELOG.md" released "%Y-%m-%dT%H:%M:%S+00:00" UTC)
endif()
execute_process(COMMAND date -R -d "${released}" OUTPUT_VARIABLE VELOR_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE)
string(SUBSTRING "${released}" 0 10 VELOR_RELEASE_DATE)
# Where the manual's pictures lie for software centres.
set(VELOR_PICTURES_ADDRESS "https://velor.example/manual" CACHE STRING "Address of the folder with docs/manual/*.png")
configure_file("${packaging}/${application}.metainfo.xml.in" "${made}/${application}.metainfo.xml" @ONLY)

set(programs velor-web-creator velor-open velor-catalogue velor-page-check velor-sample-site)

install(TARGETS ${programs})
# The bus wants the program's whole path, and the prefix of a package or of "cmake --install --prefix"
# is known when it is installed.
install(CODE "
  set(bin \"${CMAKE_INSTALL_BINDIR}\")
  cmake_path(ABSOLUTE_PATH bin BASE_DIRECTORY \"\${CMAKE_INSTALL_PREFIX}\")
  configure_file(\"${packaging}/${application}.service.in\" \"${made}/${application}.service\" @ONLY)")
install(FILES "${made}/${application}.service" DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services")
install(FILES "${packaging}/${application}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${made}/${application}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/app.svg" DESTINATION "${icons}/scalable/apps"
  RENAME ${application}.svg)
install(FILES "${packaging}/symbolic.svg" DESTINATION "${icons}/symbolic/apps"
  RENAME ${application}-symbolic.svg)
# The folder also tells the program that it is an installed one.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/sample/" DESTINATION "${own_data}/sample")

set(icon_sizes 16 22 24 32 48 64 128 256 512)
set(icon_files ${icon_sizes})
list(TRANSFORM icon_files REPLACE "(.+)" "${made}/\\1.png")
add_custom_command(OUTPUT ${icon_files}
  COMMAND velor-icon-sizes "${PROJECT_SOURCE_DIR}/resources/icons/app.svg" "${made}" ${icon_sizes}
  DEPENDS velor-icon-sizes "${PROJECT_SOURCE_DIR}/resources/icons/app.svg" VERBATIM)
foreach(size ${icon_sizes})
  install(FILES "${made}/${size}.png" DESTINATION "${icons}/${size}x${size}/apps" RENAME ${application}.png)
endforeach()

# Debian wants manual pages and the changelog compressed, without a time in them.
set(compressed)
function(velor_compressed from name destination)
  set(file "${made}/${name}.gz")
  add_custom_command(OUTPUT "${file}" COMMAND gzip -9nc "${from}" > "${file}" DEPENDS "${from}" VERBATIM)
  install(FILES "${file}" DESTINATION "${destination}")
  set(compressed ${compressed} "${file}" PARENT_SCOPE)
endfunction()
configure_file("${packaging}/changelog.in" "${made}/changelog" @ONLY)
velor_compressed("${made}/changelog" changelog "${CMAKE_INSTALL_DATADIR}/doc/velor-web-creator")
foreach(program ${programs})
  velor_compressed("${packaging}/man/${program}.1" ${program}.1 "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/manual/"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/velor-web-creator/html")
install(FILES "${packaging}/lintian-overrides" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
  RENAME velor-web-creator)
install(FILES "${packaging}/copyright" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/velor-web-creator")
foreach(program velor-open velor-catalogue velor-page-check velor-sample-site)
  install(FILES "${packaging}/completions/${program}"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
endforeach()
add_custom_target(velor-packaging ALL DEPENDS ${icon_files} ${compressed})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velor-web-creator)
set(CPACK_PACKAGE_VENDOR Velor)
set(CPACK_PACKAGE_CONTACT "The Velor Web Creator developers <developers@velor.example>")
# Installed as into /usr, below a folder of its own: see the bus's file above.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the program looks up when it runs, which no library names.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland, fonts-dejavu-core, hunspell-en-us | hunspell-dictionary, xdg-utils")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for web pages that people keep as files")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Pages are written as they look, beside a view and an editor of their HTML and
a preview. A page that was not edited is saved byte by byte as it was, in its
own charset and with its own line ends; of an edited one every byte outside
the edit stays. What was not saved is offered again after an exit or a crash.

Web-site projects come from the catalogue of the companion program Vitrine.")
include(CPack)
