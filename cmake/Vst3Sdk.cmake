# SPDX-License-Identifier: GPL-3.0-or-later
#
# The VST3 SDK that scripts/fetch-vst3-sdk puts into build/deps/vst3sdk, compiled from its sources
# when something links it:
#   third_party::vst3_base      interfaces' identifiers, strings, streams, reference counted objects
#   third_party::vst3_plugin    what a plug-in derives from: effect, parameters, view, class factory.
#                               Without the SDK's module entries: our library has its own
#   third_party::vst3_hosting   what a host needs: loading a library, host context, process data,
#                               preset files
#   third_party::vst3_main      the list of functions that run when a module is loaded; in vst3_plugin
# and the SDK's programs validator and moduleinfotool, in the build's bin folder.
#
# No source is in two of the libraries, so that a program may link all of them (a test that holds
# plug-in and host). JUCE's package carries a part of an older SDK; its folders must never come before
# this one.

set(BROLT_VST3_SDK "${PROJECT_SOURCE_DIR}/build/deps/vst3sdk" CACHE PATH "The VST3 SDK (scripts/fetch-vst3-sdk)")
mark_as_advanced(BROLT_VST3_SDK)

foreach(part IN ITEMS base/source/fobject.h pluginterfaces/base/funknown.h public.sdk/source/main/pluginfactory.h)
    if(NOT EXISTS "${BROLT_VST3_SDK}/${part}")
        message(FATAL_ERROR "The VST3 SDK is not in ${BROLT_VST3_SDK}; call scripts/fetch-vst3-sdk")
    endif()
endforeach()

# Seen by the SDK's own files and by everything that includes them.
add_library(vst3_settings INTERFACE)
target_include_directories(vst3_settings SYSTEM INTERFACE "${BROLT_VST3_SDK}")
# In debug builds too: under DEVELOPMENT some classes have further members, and the SDK's assertions
# stop a program that nobody debugs.
target_compile_definitions(vst3_settings INTERFACE RELEASE=1)
target_link_libraries(vst3_settings INTERFACE Threads::Threads)
if(WIN32)
    target_compile_definitions(vst3_settings INTERFACE
        _WIN32_WINNT=0x0A00 UNICODE _UNICODE NOMINMAX __USE_MINGW_ANSI_STDIO=1)
endif()

# The SDK's warnings are not ours, nor is what the sanitizer for undefined behaviour finds in it:
# every finding ends the program. The address and thread sanitizers see into it.
add_library(vst3_compilation INTERFACE)
target_compile_options(vst3_compilation INTERFACE -w)
if(BROLT_SANITIZE STREQUAL "address")
    target_compile_options(vst3_compilation INTERFACE -fno-sanitize=undefined)
endif()

# brolt_add_vst3_library(<name> [LINKS <target or library>...] SOURCES <file below the SDK>...)
function(brolt_add_vst3_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;SOURCES")
    list(TRANSFORM arg_SOURCES PREPEND "${BROLT_VST3_SDK}/")
    add_library(${name} STATIC EXCLUDE_FROM_ALL ${arg_SOURCES})
    add_library(third_party::${name} ALIAS ${name})
    target_link_libraries(${name} PUBLIC vst3_settings ${arg_LINKS} PRIVATE vst3_compilation)
endfunction()

# brolt_add_vst3_program(<name> LINKS <target>... SOURCES <file below the SDK>...)
#
# Little optimised and without debug information: such a program waits for what it loads.
function(brolt_add_vst3_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;SOURCES")
    list(TRANSFORM arg_SOURCES PREPEND "${BROLT_VST3_SDK}/")
    add_executable(${name} EXCLUDE_FROM_ALL ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINKS} vst3_compilation)
    target_compile_options(${name} PRIVATE -O1 -g0)
    if(WIN32)
        # Its main function is wmain.
        target_link_options(${name} PRIVATE -municode -static -static-libgcc -static-libstdc++ -s)
    endif()
endfunction()

if(WIN32)
    set(vst3BaseSystemLibraries ole32)
    set(vst3HostingSystemLibraries shell32 ole32 uuid)
    set(vst3HostingSystemSources
        public.sdk/source/common/threadchecker_win32.cpp
        public.sdk/source/vst/hosting/module_win32.cpp)
else()
    set(vst3BaseSystemLibraries ${CMAKE_DL_LIBS})
    set(vst3HostingSystemLibraries ${CMAKE_DL_LIBS})
    set(vst3HostingSystemSources
        public.sdk/source/common/threadchecker_linux.cpp
        public.sdk/source/vst/hosting/module_linux.cpp)
endif()

brolt_add_vst3_library(vst3_base LINKS ${vst3BaseSystemLibraries} SOURCES
    base/source/baseiids.cpp
    base/source/fbuffer.cpp
    base/source/fdebug.cpp
    base/source/fdynlib.cpp
    base/source/fobject.cpp
    base/source/fstreamer.cpp
    base/source/fstring.cpp
    base/source/timer.cpp
    base/source/updatehandler.cpp
    base/thread/source/fcondition.cpp
    base/thread/source/flock.cpp
    pluginterfaces/base/conststringtable.cpp
    pluginterfaces/base/coreiids.cpp
    pluginterfaces/base/funknown.cpp
    pluginterfaces/base/ustring.cpp
    public.sdk/source/common/commoniids.cpp
    public.sdk/source/vst/utility/stringconvert.cpp
    public.sdk/source/vst/vstinitiids.cpp)

if(NOT WIN32)
    # On Linux the SDK counts references by adding atomically and then reading, which two threads that
    # let go of one object at once can both take for the last. With this it uses the standard's atomics,
    # which C++ has in that header since C++23.
    set_source_files_properties("${BROLT_VST3_SDK}/pluginterfaces/base/funknown.cpp" PROPERTIES
        COMPILE_DEFINITIONS SMTG_USE_STDATOMIC_H=1 COMPILE_OPTIONS -std=c++23)
endif()

# Both plug-ins and the SDK's programs call its list.
brolt_add_vst3_library(vst3_main LINKS vst3_base SOURCES
    public.sdk/source/main/moduleinit.cpp)

brolt_add_vst3_library(vst3_plugin LINKS vst3_main vst3_base SOURCES
    public.sdk/source/common/pluginview.cpp
    public.sdk/source/main/pluginfactory.cpp
    public.sdk/source/vst/vstbus.cpp
    public.sdk/source/vst/vstcomponentbase.cpp
    public.sdk/source/vst/vstparameters.cpp
    # Includes vsteditcontroller.cpp.
    public.sdk/source/vst/vstsinglecomponenteffect.cpp)

brolt_add_vst3_library(vst3_hosting LINKS vst3_base ${vst3HostingSystemLibraries} SOURCES
    ${vst3HostingSystemSources}
    public.sdk/source/common/memorystream.cpp
    public.sdk/source/vst/hosting/connectionproxy.cpp
    public.sdk/source/vst/hosting/eventlist.cpp
    public.sdk/source/vst/hosting/hostclasses.cpp
    public.sdk/source/vst/hosting/module.cpp
    public.sdk/source/vst/hosting/parameterchanges.cpp
    public.sdk/source/vst/hosting/pluginterfacesupport.cpp
    public.sdk/source/vst/hosting/plugprovider.cpp
    public.sdk/source/vst/hosting/processdata.cpp
    public.sdk/source/vst/moduleinfo/moduleinfoparser.cpp
    public.sdk/source/vst/vstpresetfile.cpp)

brolt_add_vst3_program(moduleinfotool LINKS vst3_hosting SOURCES
    public.sdk/samples/vst-utilities/moduleinfotool/source/main.cpp
    public.sdk/source/common/readfile.cpp
    public.sdk/source/vst/moduleinfo/moduleinfocreator.cpp)

brolt_add_vst3_program(validator LINKS vst3_hosting vst3_main SOURCES
    public.sdk/samples/vst-hosting/validator/source/main.cpp
    public.sdk/samples/vst-hosting/validator/source/usediids.cpp
    public.sdk/samples/vst-hosting/validator/source/validator.cpp
    public.sdk/source/vst/hosting/test/connectionproxytest.cpp
    public.sdk/source/vst/hosting/test/eventlisttest.cpp
    public.sdk/source/vst/hosting/test/hostclassestest.cpp
    public.sdk/source/vst/hosting/test/parameterchangestest.cpp
    public.sdk/source/vst/hosting/test/pluginterfacesupporttest.cpp
    public.sdk/source/vst/hosting/test/processdatatest.cpp
    public.sdk/source/vst/testsuite/bus/busactivation.cpp
    public.sdk/source/vst/testsuite/bus/busconsistency.cpp
    public.sdk/source/vst/testsuite/bus/businvalidindex.cpp
    public.sdk/source/vst/testsuite/bus/checkaudiobusarrangement.cpp
    public.sdk/source/vst/testsuite/bus/scanbusses.cpp
    public.sdk/source/vst/testsuite/bus/sidechainarrangement.cpp
    public.sdk/source/vst/testsuite/general/editorclasses.cpp
    public.sdk/source/vst/testsuite/general/midilearn.cpp
    public.sdk/source/vst/testsuite/general/midimapping.cpp
    public.sdk/source/vst/testsuite/general/plugcompat.cpp
    public.sdk/source/vst/testsuite/general/scanparameters.cpp
    public.sdk/source/vst/testsuite/general/suspendresume.cpp
    public.sdk/source/vst/testsuite/general/terminit.cpp
    public.sdk/source/vst/testsuite/noteexpression/keyswitch.cpp
    public.sdk/source/vst/testsuite/noteexpression/noteexpression.cpp
    public.sdk/source/vst/testsuite/processing/automation.cpp
    public.sdk/source/vst/testsuite/processing/process.cpp
    public.sdk/source/vst/testsuite/processing/processcontextrequirements.cpp
    public.sdk/source/vst/testsuite/processing/processformat.cpp
    public.sdk/source/vst/testsuite/processing/processinputoverwriting.cpp
    public.sdk/source/vst/testsuite/processing/processtail.cpp
    public.sdk/source/vst/testsuite/processing/processthreaded.cpp
    public.sdk/source/vst/testsuite/processing/silenceflags.cpp
    public.sdk/source/vst/testsuite/processing/silenceprocessing.cpp
    public.sdk/source/vst/testsuite/processing/speakerarrangement.cpp
    public.sdk/source/vst/testsuite/processing/variableblocksize.cpp
    public.sdk/source/vst/testsuite/state/bypasspersistence.cpp
    public.sdk/source/vst/testsuite/state/invalidstatetransition.cpp
    public.sdk/source/vst/testsuite/state/repeatidenticalstatetransition.cpp
    public.sdk/source/vst/testsuite/state/validstatetransition.cpp
    public.sdk/source/vst/testsuite/testbase.cpp
    public.sdk/source/vst/testsuite/unit/checkunitstructure.cpp
    public.sdk/source/vst/testsuite/unit/scanprograms.cpp
    public.sdk/source/vst/testsuite/unit/scanunits.cpp
    public.sdk/source/vst/testsuite/vsttestsuite.cpp
    public.sdk/source/vst/utility/testing.cpp)
