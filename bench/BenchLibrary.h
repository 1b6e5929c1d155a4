// SPDX-License-Identifier: GPL-3.0-or-later
//
// The built library, loaded as a host loads it, and an instance of its plug-in.

#pragma once

#include <pluginterfaces/gui/iplugview.h>
#include <pluginterfaces/vst/ivstaudioprocessor.h>
#include <pluginterfaces/vst/ivstcomponent.h>
#include <public.sdk/source/vst/hosting/hostclasses.h>
#include <public.sdk/source/vst/hosting/module.h>

/// Throws std::runtime_error when it cannot be loaded.
VST3::Hosting::Module::Ptr loadLibrary();

/// An instance as the host has it after initialize.
class LibraryPlugIn {
public:
    /// Throws std::runtime_error when the library makes none.
    explicit LibraryPlugIn(const VST3::Hosting::Module::Ptr& module);
    ~LibraryPlugIn();
    LibraryPlugIn(const LibraryPlugIn&) = delete;
    LibraryPlugIn& operator=(const LibraryPlugIn&) = delete;

    /// Hz, and the longest block.
    Steinberg::Vst::IAudioProcessor& start(double sampleRate, Steinberg::int32 blockFrames);

    /// Throws std::runtime_error when there is none.
    Steinberg::IPtr<Steinberg::IPlugView> createEditor();

private:
    Steinberg::Vst::HostApplication context;
    Steinberg::IPtr<Steinberg::Vst::IComponent> component;
    Steinberg::FUnknownPtr<Steinberg::Vst::IAudioProcessor> processor;
};
