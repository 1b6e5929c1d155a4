// SPDX-License-Identifier: GPL-3.0-or-later
// Decoding of extension documents that come from outside: from files and from hosts' projects.
#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <span>

/// Deepest nesting of arrays and objects that is taken. Documents of our own nest four deep; the
/// library's decoder, and whoever walks a document, goes one call deeper for each level, so that a
/// few hundred kilobytes of opening brackets would exhaust a host's stack.
constexpr int deepestExtensionNesting = 64;

/// Nothing for bytes that are not exactly one document, or nest too deep. [any thread]
[[nodiscard]] std::optional<nlohmann::json>
decodeMessagePackDocument(std::span<const std::uint8_t> bytes);

/// The same for JSON text. [any thread]
[[nodiscard]] std::optional<nlohmann::json> decodeJsonDocument(std::span<const std::uint8_t> text);
