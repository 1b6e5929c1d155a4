// SPDX-License-Identifier: GPL-3.0-or-later
// Which host application has loaded the plug-in, as far as anybody has to know: a few hosts need
// help with the editor's size, and the update check reports the host by name.
//
// The toolkit has such a facility, too. Its kinds and tests change from version to version; what is
// reported to our server, and which hosts get which help, must not.
#pragma once

#include <cstdint>
#include <string_view>

/// Numbers of kinds that somebody names. The others are in the table of the .cpp file.
namespace HostKind {
constexpr std::int32_t unknown = 0;
constexpr std::int32_t daVinciResolve = 12;
constexpr std::int32_t digitalPerformer = 14;
constexpr std::int32_t firstWavelab = 33;
constexpr std::int32_t lastWavelab = 37;
constexpr std::int32_t ownConsole = 44; ///< the highest kind there is
} // namespace HostKind

/// The kind of the application that this process runs; looked up anew each time. [message thread]
[[nodiscard]] std::int32_t hostKind();

/// The kind of an application by the full path of its program, in UTF-8. [any thread]
[[nodiscard]] std::int32_t hostKindOfPath(std::string_view programPath);

/// "Unknown" for a kind without a name of its own. [any thread]
[[nodiscard]] const char* hostDisplayName(std::int32_t kind);

/// Whether the host applies an editor's size reliably only a moment after it has attached it.
/// [any thread]
[[nodiscard]] bool wantsEditorSizeAgain(std::int32_t kind);

/// Whether the host moves an editor's content when it resizes it. [any thread]
[[nodiscard]] bool wantsEditorBoundsAgain(std::int32_t kind);
