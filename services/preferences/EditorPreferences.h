// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences an editor keeps for its product: background mode and magnification, in the shell
// store. Their keys contain what the product calls itself, so that products do not share them.
#pragma once

#include <cstdint>
#include <string>

namespace QM {

/// What an editor that was never restyled shows.
constexpr std::int32_t defaultBackgroundMode = 1;

/// The product code with "_bknd" appended: "QMBLT_bknd". Not a key of the group saved under the
/// same product code, whose item "background" is kept beside it. [any thread]
[[nodiscard]] std::string backgroundModeKey(const std::string& productCode);

/// [message thread]
[[nodiscard]] std::int32_t readBackgroundMode(const std::string& productCode);
/// Saved by the store's timer. [message thread]
void writeBackgroundMode(const std::string& productCode, std::int32_t mode);

/// Percent, under a key that the product names itself ("BROLT_SML"); what counts as the default is
/// the editor's business. [message thread]
[[nodiscard]] std::int32_t readMagnification(const std::string& sizeKey,
                                             std::int32_t defaultPercent);
/// Saved at once: a host may end soon after it resized a window. [message thread]
void writeMagnification(const std::string& sizeKey, std::int32_t percent);

} // namespace QM
