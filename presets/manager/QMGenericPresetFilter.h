// SPDX-License-Identifier: GPL-3.0-or-later
// Accepts the preset files of certain makers, products and variants, by the header of each.
#pragma once

#include "presets/manager/QMGenericPresetManager.h"

#include <vector>

class QMGenericPresetFilter : public QMGenericPresetManager::Filter {
public:
    /// Accepts one of each.
    QMGenericPresetFilter(FourCharCode manufacturerCode, FourCharCode productCode,
                          FourCharCode variantCode);

    /// Accept one more. [message thread]
    void addManufacturerCode(FourCharCode code) { manufacturers.add(code); }

    void addProductCode(FourCharCode code) { products.add(code); }

    void addVariantCode(FourCharCode code) { variants.add(code); }

    /// Accept every one. With all three set, whatever has a sound header passes. [message thread]
    void setMatchAnyManufacturer(bool matchAny) { manufacturers.matchAny = matchAny; }

    void setMatchAnyProduct(bool matchAny) { products.matchAny = matchAny; }

    void setMatchAnyVariant(bool matchAny) { variants.matchAny = matchAny; }

    [[nodiscard]] bool accept(const std::string& path) override;

private:
    struct Codes {
        std::vector<FourCharCode> accepted;
        bool matchAny = false;

        void add(FourCharCode code) { accepted.push_back(code); }

        [[nodiscard]] bool match(FourCharCode code) const;
    };

    Codes manufacturers;
    Codes products;
    Codes variants;
};
