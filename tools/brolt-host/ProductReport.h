// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the info command prints: who the product is to every kind of host.

#pragma once

#include "tools/brolt-host/ProductModel.h"

#include <string>

/// Lines of "name  value", one block a type. [message thread]
std::string productReport(ProductModel& product);
