// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/BreadcrumbOrder.h"

#include <algorithm>
#include <string_view>

namespace {

/// Signed, so that bytes beyond ASCII come before all others.
signed char folded(char character) {
    const bool isCapital = character >= 'A' && character <= 'Z';
    return static_cast<signed char>(isCapital ? character - 'A' + 'a' : character);
}

bool foldedLess(std::string_view first, std::string_view second) {
    return std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end(),
                                        [](char a, char b) { return folded(a) < folded(b); });
}

} // namespace

void sortByBreadcrumb(std::vector<QMPresetItem*>& presets) {
    std::stable_sort(presets.begin(), presets.end(),
                     [](const QMPresetItem* first, const QMPresetItem* second) {
                         return foldedLess(first->breadcrumb(), second->breadcrumb());
                     });
}
