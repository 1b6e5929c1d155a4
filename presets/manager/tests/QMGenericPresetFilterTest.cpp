// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/QMGenericPresetFilter.h"

#include "presets/manager/tests/PresetBytes.h"
#include "presets/record/Utf8Path.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

class QMGenericPresetFilterTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    QMGenericPresetFilter filter{code("QML "), code("BRLT"), code("****")};

    bool accepts(const PresetBytes& preset) {
        writeFile(directory / "a", preset.bytes());
        return filter.accept(utf8FromPath(directory / "a"));
    }
};

/// Which of the three codes are the filter's.
PresetBytes presetWith(bool manufacturer, bool product, bool variant) {
    PresetBytes preset;
    preset.manufacturer = code(manufacturer ? "QML " : "mine");
    preset.product = code(product ? "BRLT" : "prod");
    preset.variant = code(variant ? "****" : "vari");
    return preset;
}

} // namespace

TEST_F(QMGenericPresetFilterTest, everyCodeHasToBeListedOrMatchAny) {
    for (unsigned flags = 0; flags < 8; ++flags) {
        const bool anyManufacturer = (flags & 1u) != 0;
        const bool anyProduct = (flags & 2u) != 0;
        const bool anyVariant = (flags & 4u) != 0;
        filter.setMatchAnyManufacturer(anyManufacturer);
        filter.setMatchAnyProduct(anyProduct);
        filter.setMatchAnyVariant(anyVariant);
        for (unsigned listed = 0; listed < 8; ++listed) {
            const bool manufacturer = (listed & 1u) != 0;
            const bool product = (listed & 2u) != 0;
            const bool variant = (listed & 4u) != 0;
            EXPECT_EQ(accepts(presetWith(manufacturer, product, variant)),
                      (manufacturer || anyManufacturer) && (product || anyProduct) &&
                          (variant || anyVariant))
                << "flags " << flags << ", listed " << listed;
        }
    }
}

TEST_F(QMGenericPresetFilterTest, matchesNothingButItsCodesAtFirst) {
    EXPECT_TRUE(accepts(presetWith(true, true, true)));
    EXPECT_FALSE(accepts(presetWith(false, true, true)));
    EXPECT_FALSE(accepts(presetWith(true, false, true)));
    EXPECT_FALSE(accepts(presetWith(true, true, false)));
}

TEST_F(QMGenericPresetFilterTest, codesMayBeAddedToEachList) {
    filter.addManufacturerCode(code("mine"));
    EXPECT_TRUE(accepts(presetWith(false, true, true)));
    filter.addProductCode(code("prod"));
    EXPECT_TRUE(accepts(presetWith(false, false, true)));
    filter.addVariantCode(code("vari"));
    EXPECT_TRUE(accepts(presetWith(false, false, false)));
    EXPECT_TRUE(accepts(presetWith(true, true, true)));
}

TEST_F(QMGenericPresetFilterTest, aWildcardInTheFileIsACodeLikeAnyOther) {
    PresetBytes preset;
    preset.manufacturer = code("****");
    EXPECT_FALSE(accepts(preset));
}

TEST_F(QMGenericPresetFilterTest, aFileWhoseHeaderDoesNotReadIsRejectedWhateverMatches) {
    filter.setMatchAnyManufacturer(true);
    filter.setMatchAnyProduct(true);
    filter.setMatchAnyVariant(true);
    PresetBytes other;
    other.magic = code("qmbq");
    EXPECT_FALSE(accepts(other));
    writeFile(directory / "short", PresetBytes().bytes().substr(0, 30));
    EXPECT_FALSE(filter.accept(utf8FromPath(directory / "short")));
    writeFile(directory / "empty", "");
    EXPECT_FALSE(filter.accept(utf8FromPath(directory / "empty")));
    EXPECT_FALSE(filter.accept(utf8FromPath(directory / "missing")));
    EXPECT_FALSE(filter.accept(utf8FromPath(directory.path())));
    EXPECT_FALSE(filter.accept(""));
}
