// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rules between the layers, read off the include lines of a checkout.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Everything in the C++ sources below `root` that breaks a rule, one text each, "file:line:
// reason":
//   - a file of no layer;
//   - a quoted include that names no file from the root;
//   - an include of a layer that the file's own layer does not see;
//   - a shipped file that includes a test's file;
//   - a header in angle brackets that is neither the C++ standard's nor allowed to the layer
//     (tests of the layer excepted);
//   - a header of the JUCE toolkit in a layer that is not built on it.
// Empty where all is well. Throws what findSourceFiles and readLines throw. [any thread]
std::vector<std::string> checkLayers(const std::filesystem::path& root);
