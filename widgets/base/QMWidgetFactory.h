// SPDX-License-Identifier: GPL-3.0-or-later
// Makes widgets from descriptors. Each family of widgets tells the factory of its types in a file
// of its own (controls/ControlWidgetTypes.h and so on), so that a new class is a line there and no
// more. [message thread]
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

class QMWidget;

class QMWidgetFactory {
public:
    /// What becomes the list of items of a widget that has one.
    enum class Items {
        none,
        named,    ///< the texts of the parameter's whole numbers from its minimum to its maximum
        fromZero, ///< the same from 0 to the maximum
    };

    /// Where the readout of a control goes that is made with one.
    enum class Readout {
        none,
        above,      ///< directly above the control, as wide as it
        aboveFader, ///< a little wider, overlapping the control's top
    };

    using Creator = std::function<std::unique_ptr<QMWidget>(const QMWidgetDescriptor&)>;

    struct Type {
        Creator create;
        Items items = Items::none;
        Readout readout = Readout::none;
    };

    /// A code that is known already gets the new type.
    void add(std::uint32_t code, Type type);

    /// How readouts are made, for the types that have one.
    void setReadoutCreator(Creator creator) { createsReadout = std::move(creator); }

    /// Null for a code without a class.
    [[nodiscard]] const Type* typeOf(std::uint32_t code) const;

    /// Null for a code without a class.
    [[nodiscard]] std::unique_ptr<QMWidget> create(const QMWidgetDescriptor& descriptor) const;

    /// Null when nobody said how.
    [[nodiscard]] std::unique_ptr<QMWidget>
    createReadout(const QMWidgetDescriptor& descriptor) const;

private:
    std::map<std::uint32_t, Type> types;
    Creator createsReadout;
};
