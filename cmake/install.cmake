# What `cmake --install` puts where, and the Debian package (`cpack` in the build folder): programs,
# data, the list of frame hashes, manual pages and completion made from --help, and what a desktop
# wants to know. An installed program finds its data in share/ombrel beside its own folder.
include(GNUInstallDirs)

set(installed_programs)
foreach(program larkfen larkfen-player larkfen-capture larkfen-gallery larkfen-inspect)
  if(TARGET ${program})
    list(APPEND installed_programs ${program})
  endif()
endforeach()
install(TARGETS ${installed_programs} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrel
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
        DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                              WORLD_READ WORLD_EXECUTE
        PATTERN ".cache" EXCLUDE)

# What python3 makes. The list of frame hashes that larkfen-capture --verify compares with.
find_package(Python3 COMPONENTS Interpreter)
if(NOT Python3_FOUND)
  message(STATUS "Without python3 only the programs and the data are installed")
  return()
endif()
set(stored_frames ${CMAKE_SOURCE_DIR}/tests/scenario/frames.txt.gz)
set(frame_hashes ${CMAKE_BINARY_DIR}/frame-hashes.txt)
add_custom_command(OUTPUT ${frame_hashes}
                   COMMAND Python3::Interpreter ${CMAKE_SOURCE_DIR}/tools/frame_hashes.py
                           ${stored_frames} ${PROJECT_VERSION} ${frame_hashes}
                   DEPENDS ${stored_frames} ${CMAKE_SOURCE_DIR}/tools/frame_hashes.py VERBATIM)
set(made_files ${frame_hashes})
install(FILES ${frame_hashes} DESTINATION ${CMAKE_INSTALL_DATADIR}/ombrel)

# --help is written once: the manual page and the completion of a program are made from it, where it
# can run.
set(from_help ${CMAKE_SOURCE_DIR}/tools/from_help.py)
set(documented ${installed_programs})
if(CMAKE_CROSSCOMPILING)
  set(documented)
endif()
foreach(program ${documented})
  set(page ${CMAKE_BINARY_DIR}/man/${program}.1.gz)
  set(completion ${CMAKE_BINARY_DIR}/completion/${program})
  foreach(form man bash)
    set(out ${page})
    if(form STREQUAL bash)
      set(out ${completion})
    endif()
    add_custom_command(OUTPUT ${out}
                       COMMAND Python3::Interpreter ${from_help} ${form} $<TARGET_FILE:${program}>
                               ${PROJECT_VERSION} ${out}
                       DEPENDS ${program} ${from_help} VERBATIM)
    list(APPEND made_files ${out})
  endforeach()
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${completion} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endforeach()
add_custom_target(release_files ALL DEPENDS ${made_files})

# The desktop.
set(desktop ${CMAKE_SOURCE_DIR}/tools/package/desktop)
install(FILES ${desktop}/larkfen.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
configure_file(${desktop}/ombrel.metainfo.xml.in
               ${CMAKE_BINARY_DIR}/org.quellant.ombrel.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/org.quellant.ombrel.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(size 16 32 48 64 128 256)
  install(FILES ${CMAKE_SOURCE_DIR}/art/icon/larkfen-${size}.png RENAME larkfen.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

set(CPACK_PACKAGE_CONTACT "Ombrel maintainers <ombrel@quellant.example>") # nobody's address

# Licences and changes, as a Debian package keeps them.
set(package_doc ${CMAKE_INSTALL_DATADIR}/doc/ombrel)
set(copyright ${CMAKE_BINARY_DIR}/copyright)
set(changes ${CMAKE_BINARY_DIR}/changelog.gz)
file(GLOB licences CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/package/licences/*.txt)
add_custom_command(OUTPUT ${copyright} ${changes}
                   COMMAND Python3::Interpreter ${CMAKE_SOURCE_DIR}/tools/debian_files.py
                           ${CMAKE_BINARY_DIR} ${CPACK_PACKAGE_CONTACT}
                   DEPENDS ${CMAKE_SOURCE_DIR}/tools/debian_files.py ${CMAKE_SOURCE_DIR}/LICENSE
                           ${CMAKE_SOURCE_DIR}/CHANGELOG.md ${licences} VERBATIM)
add_custom_target(package_doc ALL DEPENDS ${copyright} ${changes})
install(FILES ${copyright} ${changes} DESTINATION ${package_doc})

# --- the Debian package: cpack --config build/release/CPackConfig.cmake -----------------------------
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ombrel)
set(CPACK_PACKAGE_VENDOR Quellant)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "real-time demo, drawn by the processor alone")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_DESCRIPTION
"Two and a half minutes of music and picture: a small world in a glass
globe, by day and then by night. Everything on the screen is computed by the
processor, one thread, into a 16-bit frame buffer.
.
Tools that record frames exactly, draw every filler into one picture and say
what is wrong with a data file come with it.")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/../package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsdl2-2.0-0") # opened when the program runs
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ffmpeg")     # larkfen-capture --video
include(CPack)
