// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/update/UpdateReply.h"

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;

bool flagOf(const json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_boolean() && found->get<bool>();
}

std::string textOf(const json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

} // namespace

std::optional<QM::UpdateReply> QM::readUpdateReply(std::string_view text) {
    if (text.size() > largestUpdateReply)
        return std::nullopt;
    const json object = json::parse(text.begin(), text.end(), nullptr, false);
    if (!object.is_object())
        return std::nullopt;
    UpdateReply reply;
    reply.updateAvailable = flagOf(object, "updateAvailable");
    if (reply.updateAvailable) {
        reply.isBeta = flagOf(object, "isbeta");
        reply.version = textOf(object, "updateVersion");
        reply.installerLink = textOf(object, "updateURL");
        reply.releaseNotesLink = textOf(object, "updateReleaseNotesURL");
    }
    reply.currentReleaseNotesLink = textOf(object, "currentReleaseNotesURL");
    reply.tipsLink = textOf(object, "tipsAndTricksURL");
    return reply;
}
