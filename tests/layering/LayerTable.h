// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which folders make up a layer and which other layers it sees. The build links the layers in the
// same way (the CMakeLists.txt of each folder), yet every header can be found from the root: what
// keeps a lower layer from including a higher one is this table and the check on it.

#pragma once

#include <string>
#include <vector>

struct Layer {
    std::string name;

    // Beginnings of paths, relative to the root. The longest that fits decides.
    std::vector<std::string> paths;

    // Names of the layers it may include beside itself.
    std::vector<std::string> sees;

    // Names of the layers that its tests may include besides: a real plug-in for an editor to show.
    std::vector<std::string> testsSee = {};

    // Headers in angle brackets it may include beside the C++ standard's. Its tests are free.
    std::vector<std::string> platformHeaders;

    // Set where the JUCE toolkit's headers may be included.
    bool toolkit = false;

    // Beginnings of the headers, in angle brackets, of a plug-in interface that the layer is made
    // for.
    std::vector<std::string> interfaces = {};

    // Set where third-party libraries belong: any header in angle brackets will do.
    bool thirdParty = false;
};

// The layers of this project, from the bottom. [any thread]
const std::vector<Layer>& layerTable();

// The layer a file (path relative to the root) belongs to, or null. [any thread]
const Layer* layerOf(const std::string& path);
