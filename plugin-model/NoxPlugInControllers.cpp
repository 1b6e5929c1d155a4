// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's parameter controllers, and the event sources that travel with its state.
#include "plugin-model/INoxPlugInEnvironment.h"
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/records/ExtensionMembers.h"

namespace {

using nlohmann::json;

/// The identifier in the first four characters of a key; 0, which no parameter has, for a shorter
/// one.
FourCharCode idOfKey(const std::string& key) {
    FourCharCode id = 0;
    if (key.size() < 4)
        return id;
    for (std::size_t i = 0; i < 4; ++i)
        id = (id << 8) | static_cast<unsigned char>(key[i]);
    return id;
}

/// Raises the library's "cannot get value" for what is neither document nor null.
void requireDocument(const json& mapping) {
    if (!mapping.is_structured() && !mapping.is_null()) {
        const json nothing;
        (void)*nothing.begin();
    }
}

json controllerMapOf(const json& document) {
    const auto map = document.find(QM::controllerMapKey);
    return map != document.end() && map->is_structured() ? *map : json();
}

} // namespace

NoxParameterController* NoxPlugIn::controllerOfIndex(std::int32_t index) {
    if (!isParameterIndex(index))
        return nullptr;
    controllers.resize(static_cast<std::size_t>(parameterCount()));
    auto& controller = controllers[static_cast<std::size_t>(index)];
    if (controller == nullptr)
        controller = std::make_unique<NoxParameterController>(*this, index);
    return controller.get();
}

NoxParameterController* NoxPlugIn::controllerOfID(FourCharCode id) {
    const QM::IQMParameterSet* set = parameterSet();
    return set != nullptr ? controllerOfIndex(set->indexOfID(id)) : nullptr;
}

std::vector<NoxPlugIn::ControllerSource> NoxPlugIn::createEventSources(const json& document) {
    std::vector<ControllerSource> sources;
    const json map = controllerMapOf(document);
    for (const auto& entry : map.items()) {
        NoxParameterController* controller = controllerOfID(idOfKey(entry.key()));
        if (controller == nullptr)
            continue;
        requireDocument(entry.value());
        if (environment_ == nullptr)
            continue;
        if (auto source = environment_->createEventSource(entry.value()))
            sources.emplace_back(controller, std::move(source));
    }
    return sources;
}

void NoxPlugIn::updateParameterControllerMapFromProperty() {
    if (values_ == nullptr || controllerMapOf(values_->extensionDocument()).empty())
        return;
    // Made before the present ones go: an entry that is no document leaves these at work.
    std::vector<ControllerSource> sources = createEventSources(values_->extensionDocument());
    for (const auto& controller : controllers) {
        if (controller != nullptr)
            controller->setEventSource(nullptr);
    }
    for (auto& [controller, source] : sources) {
        source->setEventListener(
            [receiver = controller](QMGenericEventSource::EventType type, double value) {
                receiver->handleEvent(type, value);
            },
            "NoxPlugIn::updateParameterControllerMapFromProperty::EventListener");
        controller->setEventSource(std::move(source));
    }
}
