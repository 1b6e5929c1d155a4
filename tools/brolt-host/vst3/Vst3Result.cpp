// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3Result.h"

#include "tools/brolt-host/HostError.h"

using namespace Steinberg;

std::string vst3ResultText(tresult result) {
    switch (result) {
    case kResultOk:
        return "OK";
    case kResultFalse:
        return "false";
    case kNoInterface:
        return "no such interface";
    case kInvalidArgument:
        return "invalid argument";
    case kNotImplemented:
        return "not implemented";
    case kInternalError:
        return "internal error";
    case kNotInitialized:
        return "not initialised";
    case kOutOfMemory:
        return "out of memory";
    default:
        return "result " + std::to_string(result);
    }
}

void requireOk(tresult result, const char* operation) {
    if (result != kResultOk) {
        throw HostError("the VST3 plug-in answers " + std::string(operation) + " with '" +
                        vst3ResultText(result) + "'");
    }
}

void requireOkIfImplemented(tresult result, const char* operation) {
    if (result != kNotImplemented)
        requireOk(result, operation);
}
