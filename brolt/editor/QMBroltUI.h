// SPDX-License-Identifier: GPL-3.0-or-later
// The product's editor: knobs and faders of two oscillators and their detectors, output meters and
// the history of the pitches. All of it is in its tables; what is here is what tables cannot say.
// [message thread]
#pragma once

#include "widgets/ui/QMTessalyPluginUI.h"

class QMPitchHistory;

class QMBroltUI final : public QMTessalyPluginUI {
public:
    /// As for QMPlugInUI. Stereo or mono is asked of the instance now.
    QMBroltUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost);
    ~QMBroltUI() override;

    void tick() override;

protected:
    void widgetsBuilt() override;
    void appearanceChanged() override;

private:
    void placeFaderReadout(FourCharCode faderID);

    QMPitchHistory* history = nullptr;
};
