// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the editors of a product's instances; handed down by whoever knows the product.
#pragma once

#include <functional>
#include <memory>

class INoxPlugIn;
class IQMPlugInUI;
class IQMPlugInUIHost;

/// Editors of a product, by number.
enum class PlugInUINumber {
    product = 0, ///< the product's own
    generic = 1, ///< the one that every product has
};

/// Null when there is no such editor. The UI is complete but for setupAfterCreation; the host,
/// which may be null, outlives it. Called with the instance's control lock held, so that it neither
/// calls the host of the plug-in nor asks the UI's host for another size. [message thread]
using QMPlugInUIFactory =
    std::function<std::unique_ptr<IQMPlugInUI>(INoxPlugIn&, IQMPlugInUIHost*, PlugInUINumber)>;
