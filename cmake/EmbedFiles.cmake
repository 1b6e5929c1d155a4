# SPDX-License-Identifier: GPL-3.0-or-later
#
# Files as arrays of bytes in a source file.

# brolt_embed_files(OUT <source> HEADER <header> FUNCTION <function> <file> [FUNCTION ...])
#
# Writes a source that defines, for each file, the function that the header declares:
# std::span<const unsigned char> <function>(). Written anew when a file has changed.
function(brolt_embed_files)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUT;HEADER" "FUNCTION")
    set(body "// Made by the build from files of bytes.\n#include \"${arg_HEADER}\"\n")
    list(LENGTH arg_FUNCTION count)
    math(EXPR last "${count} - 1")
    foreach(i RANGE 0 ${last} 2)
        math(EXPR next "${i} + 1")
        list(GET arg_FUNCTION ${i} function)
        list(GET arg_FUNCTION ${next} file)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
        file(READ "${file}" bytes HEX)
        string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
        string(APPEND body "\nnamespace {\nconstexpr unsigned char bytes${i}[] = {\n${bytes}};\n}\n\n"
            "std::span<const unsigned char> ${function}() {\n    return bytes${i};\n}\n")
    endforeach()
    file(CONFIGURE OUTPUT "${arg_OUT}" CONTENT "${body}" @ONLY)
endfunction()
