// SPDX-License-Identifier: GPL-3.0-or-later
//
// Edits as they are printed.

#include "tools/brolt-host/editor/EditText.h"

#include "tools/brolt-host/ProductModel.h"

#include <gtest/gtest.h>

TEST(EditText, namesWhatHappenedTheParameterAndItsValue) {
    ProductModel product;
    // The first parameter is the bypass, the last the output gain.
    EXPECT_EQ(editText({Vst3Edit::Kind::begin, 0, 0.0}, product.parameters()), "begin mbyp");
    EXPECT_EQ(editText({Vst3Edit::Kind::perform, 14, 0.25}, product.parameters()),
              "perform gain 0.25");
    EXPECT_EQ(editText({Vst3Edit::Kind::end, 14, 0.25}, product.parameters()), "end gain");
}

TEST(EditText, whatIsNoParametersIndexStaysANumber) {
    ProductModel product;
    EXPECT_EQ(editText({Vst3Edit::Kind::begin, 15, 0.0}, product.parameters()), "begin 15");
    EXPECT_EQ(editText({Vst3Edit::Kind::perform, 0xFFFFFFFF, 1.0}, product.parameters()),
              "perform 4294967295 1");
}
