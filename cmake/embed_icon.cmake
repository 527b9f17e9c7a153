# Writes HEADER with the bytes of each of PNGS as one array, and a table of them.
set(arrays "")
set(entries "")
foreach(png IN LISTS PNGS)
  get_filename_component(name ${png} NAME_WE)
  string(REPLACE "-" "_" name ${name})
  file(READ ${png} hex HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes ${hex})
  string(APPEND arrays "inline constexpr unsigned char ${name}[] = {${bytes}};\n")
  string(APPEND entries "    {${name}, sizeof ${name}},\n")
endforeach()
file(WRITE ${HEADER} "#pragma once

#include <cstddef>

namespace tarvex::icon {

${arrays}
struct Png {
    const unsigned char* bytes;
    std::size_t size;
};

// The icon in all its sizes, as PNG.
inline constexpr Png Sizes[] = {
${entries}};

}  // namespace tarvex::icon
")
