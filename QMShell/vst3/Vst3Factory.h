// SPDX-License-Identifier: GPL-3.0-or-later
// The class factory: what a host sees of the library before it makes anything.
#pragma once

#include <pluginterfaces/base/ipluginbase.h>

struct Vst3Product;

/// The library's factory with the plug-in class and the compatibility class; made by the first call
/// and again after everybody has released it. The caller owns one reference. Null when it cannot be
/// made. The product must outlive the factory. [message thread]
Steinberg::IPluginFactory* vst3Factory(const Vst3Product& product) noexcept;
