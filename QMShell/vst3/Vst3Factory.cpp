// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3Factory.h"

#include "QMShell/vst3/HostBoundary.h"
#include "QMShell/vst3/PluginCompatibility.h"
#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/Vst3ClassID.h"
#include "QMShell/vst3/Vst3Product.h"
#include "QMShell/vst3/Vst3SubCategories.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"

#include <pluginterfaces/base/iplugincompatibility.h>
#include <pluginterfaces/vst/ivstcomponent.h>
#include <public.sdk/source/main/pluginfactory.h>

using namespace Steinberg;

namespace {

/// The version of the interface that the product was made for and tested with; a newer SDK in the
/// build does not change what the plug-in tells hosts.
constexpr const char* interfaceVersion = "VST 3.7.6";

constexpr int32 notDistributable = 0;
constexpr int32 distributable = 1;

const FUID compatibilityClassID(0x7A8EA518, 0xECA24036, 0x9AD492D1, 0x70AD04FB);

const Vst3Product& productOf(void* context) {
    return *static_cast<const Vst3Product*>(context);
}

/// What the factory tells of the product, asked from a type that no instance is made of.
struct Identity {
    explicit Identity(const Vst3Product& product)
        : group(product.createTypeGroup(nullptr))
        , type(*group->typeOfIndex(0))
        , name(type.displayNameWithMaker())
        , classID(vst3ClassIDText(product.vst2UniqueId, name)) {}

    std::unique_ptr<INoxPlugInTypeGroup> group;
    const INoxPlugInType& type;
    std::string name;
    std::string classID;
};

/// The SDK's factory, which also remembers the context that a host gives to the library as a whole.
/// On Linux it may offer the run loop there and nowhere else.
class ClassFactory final : public CPluginFactory {
public:
    using CPluginFactory::CPluginFactory;

    tresult PLUGIN_API setHostContext(FUnknown* newContext) override {
        context = newContext;
        return kResultOk;
    }

    [[nodiscard]] static FUnknown* hostContext() {
        return gPluginFactory == nullptr
                   ? nullptr
                   : static_cast<ClassFactory*>(gPluginFactory)->context.get();
    }

private:
    IPtr<FUnknown> context;
};

// The SDK calls these; whoever asks a factory for an object must not see an exception.

FUnknown* createPlugIn(void* context) noexcept {
    return contained("QMShellVST3", static_cast<FUnknown*>(nullptr), [&] {
        return static_cast<Vst::IComponent*>(
            new QMShellVST3(productOf(context), ClassFactory::hostContext()));
    });
}

FUnknown* createCompatibility(void* context) noexcept {
    return contained("PluginCompatibility", static_cast<FUnknown*>(nullptr), [&] {
        const Vst3Product& product = productOf(context);
        const Identity identity(product);
        return static_cast<IPluginCompatibility*>(new PluginCompatibility(
            vst3CompatibilityText(identity.classID, product.earlierVst2Ids, identity.name)));
    });
}

IPtr<ClassFactory> makeFactory(const Vst3Product& product) {
    const Identity identity(product);
    const PFactoryInfo info(identity.type.manufacturerName().c_str(), product.vendorUrl.c_str(),
                            product.vendorEmail.c_str(), PFactoryInfo::kUnicode);
    auto factory = owned(new ClassFactory(info));
    auto* const context = const_cast<void*>(static_cast<const void*>(&product));

    FUID classID;
    classID.fromString(identity.classID.c_str());
    const PClassInfo2 plugIn(classID.toTUID(), PClassInfo::kManyInstances, kVstAudioEffectClass,
                             identity.name.c_str(), notDistributable,
                             vst3SubCategories(identity.type.categoryBits()).c_str(), nullptr,
                             product.version.c_str(), interfaceVersion);
    const PClassInfo2 compatibility(compatibilityClassID.toTUID(), PClassInfo::kManyInstances,
                                    kPluginCompatibilityClass, identity.name.c_str(), distributable,
                                    "", nullptr, product.version.c_str(), interfaceVersion);
    if (!factory->registerClass(&plugIn, createPlugIn, context) ||
        !factory->registerClass(&compatibility, createCompatibility, context))
        return nullptr;
    return factory;
}

} // namespace

IPluginFactory* vst3Factory(const Vst3Product& product) noexcept {
    return contained("GetPluginFactory", static_cast<IPluginFactory*>(nullptr), [&] {
        // The SDK forgets the pointer when the last reference goes.
        if (gPluginFactory != nullptr)
            gPluginFactory->addRef();
        else
            gPluginFactory = makeFactory(product).take();
        return gPluginFactory;
    });
}
