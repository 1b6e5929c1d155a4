// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which folders make up a layer and which other layers it sees.

#include "tests/layering/LayerTable.h"

#include <cstddef>

const std::vector<Layer>& layerTable() {
    // A service that is not the log stands above the model: give it a row of its own when it comes.
    static const std::vector<Layer> layers = {
        {.name = "signal",
         .paths = {"brolt/signal/"},
         .sees = {},
         // The floating-point control word.
         .platformHeaders = {"xmmintrin.h", "emmintrin.h"}},
        {.name = "model",
         .paths = {"plugin-model/", "presets/record/", "services/Log", "services/tests/"},
         .sees = {},
         // The documents of settings records.
         .platformHeaders = {"nlohmann/json.hpp", "nlohmann/json_fwd.hpp"}},
        {.name = "preferences",
         .paths = {"services/preferences/"},
         // For the tests' temporary folders and decimal commas.
         .sees = {"model"},
         .platformHeaders = {},
         .toolkit = true},
        {.name = "update check",
         .paths = {"services/update/"},
         .sees = {},
         // The service's replies.
         .platformHeaders = {"nlohmann/json.hpp"}},
        {.name = "notifications",
         .paths = {"widgets/notifications/"},
         .sees = {"model"},
         .platformHeaders = {},
         .toolkit = true},
        {.name = "widgets",
         .paths = {"widgets/"},
         .sees = {"model", "notifications", "preferences", "update check"},
         .testsSee = {"product model", "hosting"},
         // Knob strips; reducing them.
         .platformHeaders = {"webp/decode.h", "emmintrin.h"},
         .toolkit = true},
        {.name = "preset manager",
         .paths = {"presets/manager/"},
         .sees = {"model"},
         // Putting one file in another's place, and what tells files apart.
         .platformHeaders = {"fcntl.h", "io.h", "sys/stat.h", "unistd.h", "windows.h"},
         .toolkit = true},
        {.name = "product model",
         .paths = {"brolt/model/"},
         .sees = {"signal", "model"},
         .platformHeaders = {}},
        {.name = "hosting",
         .paths = {"QMShell/hosting/"},
         .sees = {"model"},
         // The pause instruction.
         .platformHeaders = {"immintrin.h"}},
        {.name = "state", .paths = {"QMShell/state/"}, .sees = {"model"}, .platformHeaders = {}},
        {.name = "toolkit life",
         .paths = {"QMShell/toolkit/"},
         .sees = {},
         // The name of a thread; keys for the host's window.
         .platformHeaders = {"pthread.h", "windows.h", "X11/Xlib.h", "X11/keysym.h", "dlfcn.h"},
         .toolkit = true},
        {.name = "shell of editors",
         .paths = {"QMShell/gui/"},
         .sees = {"model", "notifications", "widgets", "toolkit life"},
         .testsSee = {"product model", "hosting"},
         .platformHeaders = {},
         .toolkit = true},
        {.name = "product editor",
         .paths = {"brolt/editor/"},
         .sees = {"model", "product model", "notifications", "preferences", "widgets"},
         .testsSee = {"hosting"},
         .platformHeaders = {},
         .toolkit = true},
        {.name = "extensions of plug-in interfaces",
         .paths = {"QMShell/extensions/"},
         .sees = {},
         .platformHeaders = {},
         .interfaces = {"pluginterfaces/"}},
        {.name = "VST3 adapter",
         .paths = {"QMShell/vst3/"},
         .sees = {"model", "hosting", "state", "toolkit life", "notifications", "widgets",
                  "shell of editors", "extensions of plug-in interfaces"},
         // The interface's own.
         .platformHeaders = {"nlohmann/json.hpp"},
         .toolkit = true,
         .interfaces = {"base/", "pluginterfaces/", "public.sdk/"}},
        {.name = "library",
         .paths = {"brolt/library/"},
         .sees = {"signal", "model", "product model", "product editor", "hosting", "state",
                  "VST3 adapter", "notifications", "widgets", "extensions of plug-in interfaces"},
         // DllMain.
         .platformHeaders = {"windows.h"},
         .toolkit = true,
         .interfaces = {"base/", "pluginterfaces/", "public.sdk/"}},
        {.name = "tool",
         .paths = {"tools/"},
         .sees = {"signal", "model", "preset manager", "product model", "hosting", "state",
                  "extensions of plug-in interfaces"},
         .platformHeaders = {},
         .toolkit = true,
         .thirdParty = true},
        {.name = "toolkit in tests",
         .paths = {"tests/support/toolkit/"},
         .sees = {},
         .platformHeaders = {},
         .toolkit = true},
        {.name = "shims of toolkits' headers",
         .paths = {"cmake/"},
         .sees = {},
         .platformHeaders = {},
         .thirdParty = true},
        {.name = "whole",
         .paths = {"tests/", "bench/", "fuzz/"},
         .sees = {"signal", "model", "preset manager", "product model", "hosting", "state", "tool",
                  "widgets", "product editor", "update check", "extensions of plug-in interfaces"},
         .platformHeaders = {},
         .toolkit = true,
         .thirdParty = true},
    };
    return layers;
}

const Layer* layerOf(const std::string& path) {
    const Layer* found = nullptr;
    std::size_t longest = 0;
    for (const Layer& layer : layerTable()) {
        for (const std::string& beginning : layer.paths) {
            if (path.starts_with(beginning) && beginning.size() > longest) {
                found = &layer;
                longest = beginning.size();
            }
        }
    }
    return found;
}
