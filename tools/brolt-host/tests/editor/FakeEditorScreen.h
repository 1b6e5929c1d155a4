// SPDX-License-Identifier: GPL-3.0-or-later
//
// A screen inside the test, with a window that writes down what is done with it.

#pragma once

#include "tools/brolt-host/editor/EditorScreen.h"
#include "tools/brolt-host/tests/editor/FakeEditorView.h"

#include <functional>

class FakeEditorWindow : public EditorWindow {
public:
    explicit FakeEditorWindow(CallLog& calls)
        : log(calls) {}

    ~FakeEditorWindow() override { log.emplace_back("window closed"); }

    [[nodiscard]] void* nativeHandle() const override { return &log; }

    [[nodiscard]] Steinberg::FIDString platformType() const override { return "Fake"; }

    void show(IEditorWindowListener* whom) override {
        listener = whom;
        log.emplace_back(whom != nullptr ? "window shown" : "window deaf");
    }

    void setContentSize(ViewSize size) override { log.push_back("window " + sizeText(size)); }

    void deliverEvents() override {
        if (whenDelivering)
            whenDelivering();
    }

    [[nodiscard]] bool isCloseRequested() const override { return closeIsRequested; }

    CallLog& log;
    IEditorWindowListener* listener = nullptr;
    std::function<void()> whenDelivering;
    bool closeIsRequested = false;
};

class FakeEditorScreen : public EditorScreen {
public:
    explicit FakeEditorScreen(CallLog& calls)
        : log(calls) {}

    std::unique_ptr<EditorWindow> openWindow(HostMessages&, const std::string& title, ViewSize size,
                                             bool isResizable) override {
        log.push_back("window '" + title + "' " + sizeText(size) +
                      (isResizable ? " resizable" : " fixed"));
        auto made = std::make_unique<FakeEditorWindow>(log);
        if (whenOpened)
            whenOpened(*made);
        return made;
    }

    CallLog& log;
    std::function<void(FakeEditorWindow&)> whenOpened;
};
