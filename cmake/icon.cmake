# Writes the icon file of the Windows program as a source file, so that programs elsewhere can carry
# it too: ICON_SOURCE names it.
set(icon ${CMAKE_SOURCE_DIR}/src/platform/win32/larkfen.ico)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${icon})
file(READ ${icon} bytes HEX)
string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
set(ICON_SOURCE ${CMAKE_BINARY_DIR}/icon_file.cpp)
file(CONFIGURE OUTPUT ${ICON_SOURCE} @ONLY CONTENT
"#include \"platform/sdl2/icon.h\"

namespace ombrel {

const unsigned char kIconFile[] = {
@bytes@};
const std::size_t kIconFileSize = sizeof kIconFile;

} // namespace ombrel
")
