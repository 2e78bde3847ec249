# The show as one module of WebAssembly, build/web/ombrel.wasm: what the page plays. Its functions are
# those of src/app/entry_web.cpp.
ombrel_back_end(web SOFT)

add_executable(ombrel src/app/entry_web.cpp)
set_target_properties(ombrel PROPERTIES SUFFIX .wasm)
target_link_libraries(ombrel PRIVATE ombrel_flags ombrel_app ombrel_player ombrel_demo
                                     ombrel_platform_web)
# The stack is at the bottom, so that one that runs over ends the module instead of spoiling data.
target_link_options(ombrel PRIVATE LINKER:--stack-first LINKER:-z,stack-size=1048576
                                   LINKER:--initial-memory=67108864 LINKER:--max-memory=419430400
                                   LINKER:--gc-sections LINKER:--strip-debug)
