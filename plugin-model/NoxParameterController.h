// SPDX-License-Identifier: GPL-3.0-or-later
// What drives one parameter of one instance from outside the editor and the host. It is made on
// request and lives as long as its instance; an event source can be bound to it.
#pragma once

#include <cstdint>

class INoxPlugIn;

class NoxParameterController {
public:
    NoxParameterController(INoxPlugIn& controlledPlugIn, std::int32_t parameterIndex)
        : plugIn_(controlledPlugIn)
        , index_(parameterIndex) {}

    [[nodiscard]] INoxPlugIn& plugIn() const { return plugIn_; }

    [[nodiscard]] std::int32_t index() const { return index_; }

private:
    INoxPlugIn& plugIn_;
    std::int32_t index_;
};
