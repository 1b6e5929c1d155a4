// SPDX-License-Identifier: GPL-3.0-or-later
// What a service says of newer versions, and whether its links may be opened.
#include "fuzz/support/Require.h"
#include "services/update/UpdateReply.h"
#include "services/update/WebLink.h"

#include <algorithm>
#include <cstdint>

namespace {

bool startsWithScheme(std::string link) {
    std::transform(link.begin(), link.end(), link.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return link.starts_with("http://") || link.starts_with("https://");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto reply = QM::readUpdateReply(text);
    if (reply && !reply->updateAvailable)
        require(reply->version.empty() && reply->installerLink.empty() &&
                    reply->releaseNotesLink.empty() && !reply->isBeta,
                "nothing is said of a version that there is not");
    const std::string& link = reply ? reply->installerLink : std::string(text);
    if (QM::isWebLink(link)) {
        require(startsWithScheme(link), "it is an address of the web");
        require(std::none_of(link.begin(), link.end(),
                             [](unsigned char c) {
                                 return c <= ' ' || c >= 127 || c == '"' || c == '$' || c == '`' ||
                                        c == '\\';
                             }),
                "a shell finds nothing in it");
    }
    return 0;
}
