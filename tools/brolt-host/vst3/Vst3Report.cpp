// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3Report.h"

#include "plugin-model/NumberText.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/TextTable.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/vst3/Vst3Instance.h"
#include "tools/brolt-host/vst3/Vst3Result.h"

#include <public.sdk/source/vst/utility/stringconvert.h>

#include <array>
#include <cstdio>
#include <span>

using namespace Steinberg;

namespace {

using VST3::Hosting::ClassInfo;
using VST3::Hosting::FactoryInfo;

constexpr double reportRate = 44100.0; // Hz
constexpr int32 reportBlock = 512;

struct FlagWord {
    int32 flag;
    const char* word;
};

// clang-format off
constexpr std::array factoryWords{
    FlagWord{PFactoryInfo::kClassesDiscardable,     "discardable classes"},
    FlagWord{PFactoryInfo::kLicenseCheck,           "licence check"},
    FlagWord{PFactoryInfo::kComponentNonDiscardable,"not unloaded"},
    FlagWord{PFactoryInfo::kUnicode,                "Unicode"},
};

constexpr std::array classWords{
    FlagWord{Vst::kDistributable,       "distributable"},
    FlagWord{Vst::kSimpleModeSupported, "simple mode"},
};

constexpr std::array parameterWords{
    FlagWord{Vst::ParameterInfo::kCanAutomate,     "automatable"},
    FlagWord{Vst::ParameterInfo::kIsReadOnly,      "read-only"},
    FlagWord{Vst::ParameterInfo::kIsWrapAround,    "wraps"},
    FlagWord{Vst::ParameterInfo::kIsList,          "list"},
    FlagWord{Vst::ParameterInfo::kIsHidden,        "hidden"},
    FlagWord{Vst::ParameterInfo::kIsProgramChange, "program change"},
    FlagWord{Vst::ParameterInfo::kIsBypass,        "bypass"},
};

// clang-format on

std::string hexadecimal(uint32 number) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%X", number);
    return text.data();
}

/// Bits without a word are told as a number.
std::string flagsText(int32 flags, std::span<const FlagWord> words) {
    std::string text;
    const auto append = [&](const std::string& word) { text += (text.empty() ? "" : ", ") + word; };
    auto left = static_cast<uint32>(flags);
    for (const FlagWord& row : words) {
        const auto bit = static_cast<uint32>(row.flag);
        if ((left & bit) != 0)
            append(row.word);
        left &= ~bit;
    }
    if (left != 0)
        append(hexadecimal(left));
    return text.empty() ? "-" : text;
}

/// A plug-in may say anything; a row stays a row.
std::string cell(const std::string& text) {
    return text.empty() ? "-" : printableText(text);
}

std::string cell(const Vst::String128& text) {
    constexpr uint32 longest = std::extent_v<Vst::String128>;
    return cell(VST3::StringConvert::convert(text, longest));
}

std::string factoryText(const Vst3Module& module) {
    const FactoryInfo info = module.factory().info();
    return alignedTable({
        {"VST3", utf8FromPath(module.bundle())},
        {"Vendor", cell(info.vendor())},
        {"URL", cell(info.url())},
        {"E-mail", cell(info.email())},
        {"Flags", factoryFlagsText(info.flags())},
    });
}

std::string classText(const ClassInfo& info) {
    const bool many = info.cardinality() == PClassInfo::kManyInstances;
    return alignedTable({
        {"Class", info.ID().toString()},
        {"  Category", cell(info.category())},
        {"  Name", cell(info.name())},
        {"  Vendor", cell(info.vendor())},
        {"  Sub-categories", cell(info.subCategoriesString())},
        {"  Version", cell(info.version())},
        {"  SDK version", cell(info.sdkVersion())},
        {"  Cardinality", many ? "many instances" : std::to_string(info.cardinality())},
        {"  Flags", flagsText(static_cast<int32>(info.classFlags()), classWords)},
    });
}

std::string busTypeText(Vst::BusType type) {
    if (type == Vst::kMain)
        return "main";
    return type == Vst::kAux ? "auxiliary" : std::to_string(type);
}

void appendBuses(std::vector<TextRow>& rows, const std::string& layout,
                 const Vst3Instance& instance) {
    for (const Vst::BusDirection direction : {Vst::kInput, Vst::kOutput}) {
        const int32 count = instance.component().getBusCount(Vst::kAudio, direction);
        for (int32 i = 0; i < count; ++i) {
            Vst::BusInfo info{};
            requireOk(instance.component().getBusInfo(Vst::kAudio, direction, i, info),
                      "getBusInfo");
            rows.push_back({layout, cell(info.name), direction == Vst::kInput ? "input" : "output",
                            busTypeText(info.busType), std::to_string(info.channelCount),
                            (info.flags & Vst::BusInfo::kDefaultActive) != 0 ? "yes" : "no"});
        }
    }
}

std::string busesText(Vst3Instance& instance) {
    std::vector<TextRow> rows{{"Layout", "Bus", "Direction", "Type", "Channels", "Default-active"}};
    instance.arrangeBuses(1);
    appendBuses(rows, "mono", instance);
    instance.arrangeBuses(2);
    appendBuses(rows, "stereo", instance);
    return alignedTable(rows);
}

std::string tailText(uint32 samples) {
    return samples == Vst::kInfiniteTail ? "endless" : std::to_string(samples) + " samples";
}

std::string timesText(const Vst3Instance& instance) {
    Vst::IAudioProcessor& processor = instance.processor();
    Vst::ProcessSetup setup{Vst::kRealtime, Vst::kSample32, reportBlock, reportRate};
    requireOk(processor.setupProcessing(setup), "setupProcessing");
    return alignedTable({
        {"Latency", std::to_string(processor.getLatencySamples()) + " samples"},
        {"Tail", tailText(processor.getTailSamples()) + " at 44.1 kHz"},
        {"Parameters", std::to_string(instance.controller().getParameterCount())},
    });
}

std::string parametersText(const Vst3Instance& instance) {
    std::vector<TextRow> rows{
        {"ID", "Title", "Short title", "Units", "Steps", "Default (normalised)", "Flags"}};
    for (int32 i = 0; i < instance.controller().getParameterCount(); ++i) {
        Vst::ParameterInfo info{};
        requireOk(instance.controller().getParameterInfo(i, info), "getParameterInfo");
        rows.push_back({std::to_string(info.id), cell(info.title), cell(info.shortTitle),
                        cell(info.units), std::to_string(info.stepCount),
                        QM::numberText(info.defaultNormalizedValue),
                        parameterFlagsText(info.flags)});
    }
    return alignedTable(rows);
}

} // namespace

std::string parameterFlagsText(int32 flags) {
    return flagsText(flags, parameterWords);
}

std::string factoryFlagsText(int32 flags) {
    return flagsText(flags, factoryWords);
}

std::string vst3Report(Vst3Module& module) {
    std::string text = factoryText(module);
    for (const ClassInfo& info : module.factory().classInfos())
        text += "\n" + classText(info);
    Vst3Instance instance(module.effectClass());
    text += "\n" + busesText(instance);
    text += "\n" + timesText(instance);
    return text + "\n" + parametersText(instance);
}
