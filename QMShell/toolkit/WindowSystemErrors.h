// SPDX-License-Identifier: GPL-3.0-or-later
// Errors of the X11 connection that the toolkit has in a host's process.
//
// The toolkit asks the X server about windows that may be gone by then: a host closes its own while
// ours learns of it. The answer is an error, and errors go to the one handler that the process has,
// which is the host's toolkit's, or the library's own: both end the process. While a guard lives,
// errors on our connection are dropped; those on other connections go to the handler there was.
#pragma once

#ifndef _WIN32

class WindowSystemErrors {
public:
    /// Around everything that may use the toolkit's connection. Guards nest. Nothing where no X11
    /// library is loaded. [message thread]
    WindowSystemErrors();
    ~WindowSystemErrors();
    WindowSystemErrors(const WindowSystemErrors&) = delete;
    WindowSystemErrors& operator=(const WindowSystemErrors&) = delete;
};

#endif
