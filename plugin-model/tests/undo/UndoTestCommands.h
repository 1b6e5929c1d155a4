// SPDX-License-Identifier: GPL-3.0-or-later
// Commands for tests of the undo manager: they set a number of a little document and record the
// number before.
#pragma once

#include "plugin-model/undo/ZulUndoManager.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace undoTest {

struct Document {
    std::map<std::string, int> numbers;
    int livingCommands = 0;
    int attached = 0;
};

class SetNumber : public ZulCommand {
public:
    SetNumber(Document& editedDocument, std::string numberName, int value)
        : ZulCommand(nullptr)
        , document(editedDocument)
        , name(std::move(numberName))
        , number(value) {
        ++document.livingCommands;
    }

    ~SetNumber() override { --document.livingCommands; }

    SetNumber(const SetNumber&) = delete;
    SetNumber& operator=(const SetNumber&) = delete;

    void execute(ZulUndoManager& manager) override {
        manager.add(std::make_unique<SetNumber>(document, name, document.numbers[name]));
        document.numbers[name] = number;
    }

    void attach(ZulUndoManager&) override { ++document.attached; }

    [[nodiscard]] std::string description() const override { return "Set " + name; }

private:
    Document& document;
    std::string name;
    int number;
};

class Failing : public ZulCommand {
public:
    Failing()
        : ZulCommand(nullptr) {}

    void execute(ZulUndoManager&) override { throw std::runtime_error("cannot be replayed"); }
};

/// Edits numbers the way a values object edits parameters: the number before goes to the manager.
class Editor {
public:
    explicit Editor(ZulUndoManager& recordingManager)
        : manager(recordingManager) {}

    void set(const std::string& name, int value) {
        manager.add(std::make_unique<SetNumber>(document, name, document.numbers[name]));
        document.numbers[name] = value;
    }

    Document document;

private:
    ZulUndoManager& manager;
};

} // namespace undoTest
