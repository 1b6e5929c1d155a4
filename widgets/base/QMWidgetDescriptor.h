// SPDX-License-Identifier: GPL-3.0-or-later
// The tables an editor is built from: what widgets there are, where they are, what explains them.
// A product writes them as constant data; each ends with an entry of zeros.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstdint>
#include <span>

/// Drawing options of one widget. Each family of widgets has its own record and ignores others.
struct QMWidgetStyleRecord {
    QMWidgetStyleRecord() = default;
    virtual ~QMWidgetStyleRecord() = default;

protected:
    QMWidgetStyleRecord(const QMWidgetStyleRecord&) = default;
    QMWidgetStyleRecord& operator=(const QMWidgetStyleRecord&) = default;
};

struct QMWidgetDescriptor {
    FourCharCode widgetID = 0;
    std::uint32_t widgetType = 0; ///< code of QMWidgetFactory
    const char* label = "";       ///< when empty the parameter's name is used
    const QMWidgetStyleRecord* style = nullptr;
    std::span<const FourCharCode> parameterIDs = {}; ///< slot 0 first; '????' is skipped
    std::span<const FourCharCode> displayIDs = {};   ///< meters and histories, slot 0 first
    bool keepInList = false; ///< among the parameter widgets though nothing was bound
};

/// One placed widget; design units, which are pixels at magnification 1.
struct ZulControlAreaDescriptor {
    FourCharCode widgetID = 0;
    std::int32_t top = 0;
    std::int32_t left = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct QMWidgetHelpEntry {
    FourCharCode widgetID = 0;
    const char* text = nullptr;
};

/// A place that no parameter or display fills.
constexpr FourCharCode placeholderID = fourCharCode("????");
