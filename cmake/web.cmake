# The show as one module of WebAssembly, ombrel.wasm: what the page plays. Its functions are those of
# src/app/entry_web.cpp. And the page around it: the folder build/web, whole and ready for a server.
ombrel_back_end(web SOFT)

add_executable(ombrel src/app/entry_web.cpp)
set_target_properties(ombrel PROPERTIES SUFFIX .wasm)
target_link_libraries(ombrel PRIVATE ombrel_flags ombrel_app ombrel_player ombrel_demo
                                     ombrel_platform_web)
# The stack is at the bottom, so that one that runs over ends the module instead of spoiling data.
target_link_options(ombrel PRIVATE LINKER:--stack-first LINKER:-z,stack-size=1048576
                                   LINKER:--initial-memory=67108864 LINKER:--max-memory=419430400
                                   LINKER:--gc-sections LINKER:--strip-all)

# --- the page ------------------------------------------------------------------------------------
set(page_folder ${CMAKE_BINARY_DIR}/../web)
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/web/* ${CMAKE_SOURCE_DIR}/data/*)
add_custom_command(OUTPUT ${page_folder}/sw.js
  COMMAND /usr/bin/python3 ${CMAKE_SOURCE_DIR}/tools/web_folder.py --wasm $<TARGET_FILE:ombrel>
          --out ${page_folder}
  COMMAND ${CMAKE_COMMAND} -E touch ${page_folder}/sw.js # newer than what it was made from
  DEPENDS ombrel ${page_sources} ${CMAKE_SOURCE_DIR}/tools/web_folder.py
          ${CMAKE_SOURCE_DIR}/art/MANIFEST ${CMAKE_SOURCE_DIR}/tests/scenario/frames.txt.gz
          ${CMAKE_SOURCE_DIR}/docs/pictures/scene-one.png
  VERBATIM)
add_custom_target(page ALL DEPENDS ${page_folder}/sw.js)

# What the tests run in node: the loaders behind the fuzz targets, and the arithmetic.
if(OMBREL_TESTS)
  foreach(target bmp cob line_reader track)
    add_executable(fuzz_${target} fuzz/fuzz_${target}.cpp fuzz/web_entry.cpp)
    set_target_properties(fuzz_${target} PROPERTIES SUFFIX .wasm)
    target_compile_definitions(fuzz_${target} PRIVATE OMBREL_SOURCE_DIR="")
    target_link_libraries(fuzz_${target} PRIVATE ombrel_flags ombrel_demo ombrel_platform_web)
    target_link_options(fuzz_${target} PRIVATE LINKER:--stack-first LINKER:-z,stack-size=1048576
                                               LINKER:--max-memory=134217728)
  endforeach()
  add_executable(operations tests/web/core/operations.cpp)
  set_target_properties(operations PROPERTIES SUFFIX .wasm)
  target_link_libraries(operations PRIVATE ombrel_flags ombrel_base)
  target_link_options(operations PRIVATE LINKER:--stack-first LINKER:-z,stack-size=1048576)
endif()
