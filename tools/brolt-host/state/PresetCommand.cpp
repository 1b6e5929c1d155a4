// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/PresetCommand.h"

#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/state/PresetListing.h"
#include "tools/brolt-host/state/PresetReport.h"
#include "tools/brolt-host/state/StateFile.h"

#include <cstdio>

namespace {

void print(const std::string& text) {
    std::fputs(text.c_str(), stdout);
}

/// Names of files may hold anything; a row stays a row.
std::vector<TextRow> withoutControlCharacters(std::vector<TextRow> rows) {
    for (TextRow& row : rows) {
        for (std::string& cell : row)
            cell = printableText(std::move(cell));
    }
    return rows;
}

} // namespace

int runPresetShow(const PresetShowOptions& options) {
    ProductModel product;
    print(presetReport(readStateFile(options.file), product.parameters()));
    return ExitStatus::success;
}

int runPresetList(const PresetListOptions& options) {
    const std::vector<TextRow> rows = withoutControlCharacters(presetListing(options));
    print(options.tabSeparated ? tabSeparatedTable(rows) : alignedTable(rows));
    return ExitStatus::success;
}

int runPresetConvert(const PresetConvertOptions& options) {
    writeStateFile(options.output, readStateFile(options.input).record, options.form);
    return ExitStatus::success;
}
