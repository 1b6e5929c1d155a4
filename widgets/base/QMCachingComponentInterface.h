// SPDX-License-Identifier: GPL-3.0-or-later
// A component that keeps its drawing in an image. [message thread]
#pragma once

class QMCachingComponentInterface {
public:
    virtual ~QMCachingComponentInterface() = default;

    /// The next paint draws anew.
    virtual void dropCachedDrawing() = 0;
};
