// SPDX-License-Identifier: GPL-3.0-or-later
// What our own tools may ask of a VST3 editor view beyond what the interface has: pictures without
// a window, another magnification, the editor that every product has. A view that is no editor of
// ours does not know the interface.
#pragma once

#include <pluginterfaces/base/funknown.h>

class IQMEditorPicture : public Steinberg::FUnknown {
public:
    /// Shows the editor with one control for each parameter (1) or the product's own (0).
    /// kResultFalse when that fails. [message thread]
    virtual Steinberg::tresult PLUGIN_API showGenericEditor(Steinberg::TBool generic) = 0;

    /// Percent of the design size, which the editor may round or limit; getSize tells what became
    /// of it. Not stored: the next view opens as before. kInvalidArgument below 1.
    /// [message thread]
    virtual Steinberg::tresult PLUGIN_API setMagnification(Steinberg::int32 percent) = 0;

    /// Lets the displays follow the sound once, as the view's own timer does 33 times a second.
    /// [message thread]
    virtual Steinberg::tresult PLUGIN_API refreshDisplays() = 0;

    /// Draws the whole view, whether it is attached to a window or not, into width * height pixels
    /// of red, green, blue and opaque alpha bytes, rows from the top without gaps.
    /// kInvalidArgument unless the size is the view's own. [message thread]
    virtual Steinberg::tresult PLUGIN_API drawInto(Steinberg::uint8* pixels, Steinberg::int32 width,
                                                   Steinberg::int32 height) = 0;

    static const Steinberg::FUID iid;
};

DECLARE_CLASS_IID(IQMEditorPicture, 0x3B0C5D91, 0x7E624F18, 0x9A41D6C7, 0x52E8301F)
