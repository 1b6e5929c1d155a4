// SPDX-License-Identifier: GPL-3.0-or-later
// The mapping between plain and normalised values, apart from any table or instance so that it can
// be read and tested alone.
#pragma once

struct NoxPlugInParameter;

namespace QM {

/// Normalised position of a plain value:
///   linear, stepped: (v - min) / (max - min)
///   logarithmic:     ln((v - min) k + 1) / ln((max - min) k + 1), k = 1000 when stretched, else 1
/// A value below the range gives 0. There is no upper clamp: a value above the range gives more
/// than 1, and callers rely on seeing that. [any thread]
double plainToNormalised(const NoxPlugInParameter& parameter, double plain);

/// Plain value at a normalised position: the inverse of the above. Linear and stepped parameters
/// are rounded to whole steps (halves away from zero, counted from 0 and not from the minimum),
/// stepped ones then to whole numbers; logarithmic ones are not rounded. [any thread]
double normalisedToPlain(const NoxPlugInParameter& parameter, double normalised);

} // namespace QM
