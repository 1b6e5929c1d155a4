// SPDX-License-Identifier: GPL-3.0-or-later
// The same plug-in without a library or an interface around it: an instance of the plug-in model,
// told the same things in the same order. What the library renders must be the twin's bits.
#pragma once

#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "brolt/library/tests/support/TestAudio.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/INoxPlugIn.h"

#include <memory>

class ModelTwin {
public:
    /// At rest, with the default settings.
    explicit ModelTwin(int channels = 2, double sampleRate = 44100.0);
    ~ModelTwin();
    ModelTwin(const ModelTwin&) = delete;
    ModelTwin& operator=(const ModelTwin&) = delete;

    [[nodiscard]] INoxPlugIn& model() { return *instance; }

    /// In display units.
    void set(const char (&id)[5], double plain);
    void setNormalised(std::int32_t index, double value);

    /// Back to rest, as an adapter brings its instance there.
    void reset();

    [[nodiscard]] Audio render(const Audio& input, int blockSize = 512);

private:
    NoxPlugInEnvironment environment;
    QMShellPlugInProcessingHost host{&environment};
    QMBrolt_PlugInTypeGroup group{&environment};
    std::unique_ptr<INoxPlugIn> instance;
};
