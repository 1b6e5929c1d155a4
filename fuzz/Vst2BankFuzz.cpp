// SPDX-License-Identifier: GPL-3.0-or-later
// Banks of the VST 2 plug-in that the VST3 one took the place of.
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst2Bank.h"
#include "QMShell/state/Vst2BankImport.h"
#include "fuzz/support/FuzzedInstance.h"
#include "fuzz/support/InstanceSink.h"
#include "fuzz/support/Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    FuzzedInstance instance;
    InstanceSink sink(instance.plugIn);
    StateMemoryStream stream(bytes);
    const std::string before = instance.state();
    const bool imported = importVst2Bank(stream, {sink});
    require(stream.tell() == 0, "the stream is put back");
    if (!imported || sink.entries == 0)
        requireEqual(instance.state(), before, "the state after a refusal");
    instance.requireOrder();

    const auto bank = parseVst2Bank(bytes);
    require(bank.has_value() || !imported, "only a bank is imported");
    if (bank) {
        require(bank->programCount > 0, "a bank has programs");
        require(bank->programs.empty() ||
                    bank->programs.size() == static_cast<std::size_t>(bank->programCount),
                "all programs or none");
        require(parseVst2Bank(bytes, bank->plugIn).has_value(), "it is its own plug-in's");
        require(!parseVst2Bank(bytes, bank->plugIn ^ 1u), "and not another's");
    }
    return 0;
}
