// SPDX-License-Identifier: GPL-3.0-or-later
// The role of an instance towards the A/B buttons and the blend control. What each operation does
// is told at QM::IQMParameterSnapshots; here the environment hears of changed parameters as well.
// [message thread]
#pragma once

#include <cstdint>
#include <string>

struct QMGenericPreset;

namespace QM {
enum class SnapshotMode : std::int32_t;
}

class INoxPlugInSnapshots {
public:
    virtual ~INoxPlugInSnapshots() = default;

    [[nodiscard]] virtual std::int32_t snapshotCount() const = 0;
    [[nodiscard]] virtual bool isSnapshotPopulated(std::int32_t snapshot) const = 0;
    [[nodiscard]] virtual std::int32_t activeSnapshot() const = 0;
    [[nodiscard]] virtual std::string snapshotName(std::int32_t snapshot) const = 0;
    virtual void selectSnapshot(std::int32_t snapshot, QM::SnapshotMode mode) = 0;
    virtual void loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record) = 0;
    virtual void copySnapshot(std::int32_t from, std::int32_t to) = 0;

    virtual void setBlend(float x, float y) = 0;
    /// Axis 0 is X, any other Y; 0.5 without a values object.
    [[nodiscard]] virtual float blendValue(std::int32_t axis) const = 0;
    virtual void beginBlendGesture() = 0;
    virtual void endBlendGesture() = 0;
};
