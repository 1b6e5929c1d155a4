// SPDX-License-Identifier: GPL-3.0-or-later
// The environment that every host adapter embeds.
//
// Listeners are kept in a multiset ordered by the instance they listen to, so that news of one
// instance finds its listeners without asking the others. A listener may remove itself or others
// while it is told.
#pragma once

#include "plugin-model/INoxPlugInEnvironment.h"

#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

class NoxPlugInEnvironment : public INoxPlugInEnvironment {
public:
    NoxPlugInEnvironment();
    ~NoxPlugInEnvironment() override;
    NoxPlugInEnvironment(const NoxPlugInEnvironment&) = delete;
    NoxPlugInEnvironment& operator=(const NoxPlugInEnvironment&) = delete;

    std::recursive_mutex& controlLock() override { return control; }

    NoxHostDescription& hostDescription() override { return description; }

    void setHostDescription(const NoxHostDescription& newOne) override { description = newOne; }

    void getTimeInfo(NoxTimeInfo& info) override;

    void setPosition(std::uint64_t position) override { time.position = position; }

    void setValueE(std::uint64_t value) override { time.valueE = value; }

    void setValueF(std::uint64_t value) override { time.valueF = value; }

    void setValueG(std::uint64_t value) override { time.valueG = value; }

    void setValuesFG(std::uint64_t f, std::uint64_t g) override;

    void setTempo(double tempo) override { time.tempo = tempo; }

    void setTimeSignature(std::uint32_t numerator, std::uint32_t denominator) override;
    void setTransportFlag(std::uint32_t bit, bool set) override;

    std::int32_t registerTypeGroup(INoxPlugInTypeGroup& group) override;
    INoxPlugInType* findType(FourCharCode groupID, FourCharCode typeID) override;
    [[nodiscard]] std::uint32_t typeCount() const override;
    [[nodiscard]] INoxPlugInType* typeAt(std::uint32_t index) const override;

    void addListener(NoxParameterHandler& handler) override;
    void removeListener(NoxParameterHandler& handler) override;

    void plugInGoingAway(INoxPlugIn& plugIn) override;
    void sampleRateSet(INoxPlugIn& plugIn, const double* rate) override;
    void blockSizeSet(INoxPlugIn& plugIn, std::int32_t frames) override;
    void parameterTouched(INoxPlugIn& plugIn, std::int32_t index) override;
    void parameterReleased(INoxPlugIn& plugIn, std::int32_t index) override;
    void parameterChanged(INoxPlugIn& plugIn, std::int32_t index, double value,
                          std::uint8_t flag) override;
    void parametersChanged(INoxPlugIn& plugIn, std::int32_t count, const std::int32_t* indices,
                           const double* values, std::uint8_t flag) override;

    using GenericEditorFactory =
        std::function<std::shared_ptr<IQMPlugInUI>(INoxPlugIn& plugIn, void* parent)>;

    /// From whoever has widgets. [message thread]
    void setGenericEditorFactory(GenericEditorFactory factory) {
        makesGenericEditor = std::move(factory);
    }

    std::shared_ptr<IQMPlugInUI> createGenericEditor(INoxPlugIn& plugIn, void* parent) override;

    [[nodiscard]] std::uint32_t getValue(std::uint32_t key) const override;

    void eraseValue(std::uint32_t key) override { table.erase(key); }

    void setValue(std::uint32_t key, std::uint32_t value) override { table[key] = value; }

private:
    struct ByPlugIn {
        bool operator()(const NoxParameterHandler* a, const NoxParameterHandler* b) const;
    };

    using Listeners = std::multiset<NoxParameterHandler*, ByPlugIn>;

    [[nodiscard]] Listeners::iterator find(NoxParameterHandler& handler);
    void tell(const INoxPlugIn& plugIn, const std::function<void(NoxParameterHandler&)>& news);
    void askProviders(std::uint64_t request);

    std::recursive_mutex control;
    std::vector<INoxPlugInTypeGroup*> groups;
    std::vector<INoxPlugInType*> types;
    Listeners listeners;
    NoxTimeInfo time; ///< flags: the transport flag word
    NoxHostDescription description;
    GenericEditorFactory makesGenericEditor;
    std::map<std::uint32_t, std::uint32_t> table;
};
