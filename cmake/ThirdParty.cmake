# SPDX-License-Identifier: GPL-3.0-or-later
#
# Libraries under one name for both platforms. The tools use third_party::sndfile,
# third_party::cli11, third_party::cimg and third_party::stb, the widgets third_party::webp. Natively
# they come from Debian's packages. The cross build takes what scripts/build-windows-dependencies put
# into build/deps/windows and never looks at the machine's own headers. The targets are created only
# where the library is found, so that the layers below their users build without.

if(CMAKE_CROSSCOMPILING)
    set(thirdPartySearch PATHS "${BROLT_DEPENDENCIES}" NO_DEFAULT_PATH)
else()
    set(thirdPartySearch "")
endif()

# Imported targets' folders count as system includes: their warnings are not ours.
function(brolt_add_header_library name header)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "DEFINITIONS")
    find_path(BROLT_${name}_INCLUDE ${header} ${thirdPartySearch} PATH_SUFFIXES include)
    mark_as_advanced(BROLT_${name}_INCLUDE)
    if(BROLT_${name}_INCLUDE)
        add_library(third_party::${name} INTERFACE IMPORTED GLOBAL)
        target_include_directories(third_party::${name} INTERFACE "${BROLT_${name}_INCLUDE}")
        target_compile_definitions(third_party::${name} INTERFACE ${arg_DEFINITIONS})
    endif()
endfunction()

brolt_add_header_library(cli11 CLI/CLI.hpp)
brolt_add_header_library(nlohmann_json nlohmann/json.hpp)
# Pictures are drawn in memory and written through stb: no window system, no libpng.
brolt_add_header_library(cimg CImg.h DEFINITIONS cimg_display=0)
brolt_add_header_library(stb stb/stb_image_write.h)

function(brolt_add_linked_library name header)
    find_path(BROLT_${name}_INCLUDE ${header} ${thirdPartySearch} PATH_SUFFIXES include)
    find_library(BROLT_${name}_LIBRARY ${name} ${thirdPartySearch} PATH_SUFFIXES lib)
    mark_as_advanced(BROLT_${name}_INCLUDE BROLT_${name}_LIBRARY)
    if(BROLT_${name}_INCLUDE AND BROLT_${name}_LIBRARY)
        add_library(third_party::${name} UNKNOWN IMPORTED GLOBAL)
        set_target_properties(third_party::${name} PROPERTIES
            IMPORTED_LOCATION "${BROLT_${name}_LIBRARY}"
            INTERFACE_INCLUDE_DIRECTORIES "${BROLT_${name}_INCLUDE}")
    endif()
endfunction()

brolt_add_linked_library(sndfile sndfile.h)
brolt_add_linked_library(webp webp/decode.h)
