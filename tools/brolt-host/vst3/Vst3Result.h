// SPDX-License-Identifier: GPL-3.0-or-later
//
// The answers of a VST3 plug-in, as a host's user is told of them.

#pragma once

#include <pluginterfaces/base/funknown.h>

#include <string>

/// "false", "not implemented" and so on; a number for what the interface does not know.
/// [any thread]
std::string vst3ResultText(Steinberg::tresult result);

/// Throws HostError, with the operation's name and the answer, unless the answer is OK.
/// [any thread]
void requireOk(Steinberg::tresult result, const char* operation);

/// The same for operations that a plug-in may leave out. [any thread]
void requireOkIfImplemented(Steinberg::tresult result, const char* operation);
