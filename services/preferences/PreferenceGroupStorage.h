// SPDX-License-Identifier: GPL-3.0-or-later
// Loads and saves preference groups. Every item has a property of its own, under a key made of a
// prefix (the product code), "_" and the item's key:
//
//   boolean         boolean property
//   integer         integer property
//   floating point  double property, of the 32-bit value
//   text            text property
//   colour          text, "#" and the ARGB value in hexadecimal without leading zeros
#pragma once

#include "services/preferences/PreferenceGroup.h"

namespace juce {
class PropertySet;
}

namespace QM {

/// Sets every item to what the shell store holds. An item whose key is missing keeps its value, but
/// a text becomes empty. A colour stored as a text that does not begin with "#" is read as an
/// integer, the colour's 32-bit ARGB value. A number beyond what a 32-bit float holds becomes the
/// greatest it holds; one that is not finite is ignored.
/// [message thread]
void loadGroup(const std::string& keyPrefix, PreferenceGroup& group);

/// Writes every item into the shell store, to be saved by the store's timer. [message thread]
void saveGroup(const std::string& keyPrefix, const PreferenceGroup& group);

/// The same with a set of one's own. [message thread]
void loadGroup(const juce::PropertySet& store, const std::string& keyPrefix,
               PreferenceGroup& group);
void saveGroup(juce::PropertySet& store, const std::string& keyPrefix,
               const PreferenceGroup& group);

} // namespace QM
