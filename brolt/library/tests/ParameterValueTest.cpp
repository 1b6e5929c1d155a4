// SPDX-License-Identifier: GPL-3.0-or-later
// Parameter values between the host and the instance: by index and by four-character identifier,
// inside and outside of what makes sense.
#include "brolt/library/tests/support/EditRecorder.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"
#include "brolt/library/tests/support/ParameterRows.h"

#include <cmath>
#include <limits>

using Steinberg::kResultFalse;
using Steinberg::kResultOk;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

class ParameterValue : public ::testing::Test {
protected:
    LibraryInstance instance;

    std::vector<double> all() {
        std::vector<double> values;
        for (Vst::ParamID id = 0; id < 15; ++id)
            values.push_back(instance.normalised(id));
        return values;
    }

    static Vst::ParamID identifierOf(std::size_t index) {
        char id[5] = {};
        std::copy_n(parameterRows[index].id, 4, id);
        return fourCharCode(id);
    }

    double plainOf(Vst::ParamID id) {
        return instance.controller().normalizedParamToPlain(id, instance.normalised(id));
    }
};

} // namespace

TEST_F(ParameterValue, isSetByIndexAndReadByIdentifier) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const auto index = static_cast<Vst::ParamID>(i);
        const double value = parameterRows[i].taper == RowTaper::stepped ? 1.0 : 0.25;
        instance.setNormalised(index, value);
        EXPECT_NEAR(instance.normalised(index), value, 1e-12) << parameterRows[i].id;
        EXPECT_EQ(instance.normalised(identifierOf(i)), instance.normalised(index));
    }
}

TEST_F(ParameterValue, isSetByIdentifierAndReadByIndex) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const double value = parameterRows[i].taper == RowTaper::stepped ? 1.0 : 0.75;
        instance.setNormalised(identifierOf(i), value);
        EXPECT_NEAR(instance.normalised(static_cast<Vst::ParamID>(i)), value, 1e-12)
            << parameterRows[i].id;
    }
}

TEST_F(ParameterValue, setOneByOneLeavesTheOthersAlone) {
    std::vector<double> expected = all();
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        expected[i] = parameterRows[i].taper == RowTaper::stepped ? 1.0 - expected[i] : 0.5;
        instance.setNormalised(static_cast<Vst::ParamID>(i), expected[i]);
        const std::vector<double> now = all();
        for (std::size_t k = 0; k < now.size(); ++k)
            EXPECT_NEAR(now[k], expected[k], 1e-12) << parameterRows[k].id;
    }
}

TEST_F(ParameterValue, coversTheWholeRange) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const ParameterRow& row = parameterRows[i];
        const auto index = static_cast<Vst::ParamID>(i);
        instance.setNormalised(index, 0.0);
        EXPECT_NEAR(plainOf(index), row.minimum, 1e-9) << row.id;
        instance.setNormalised(index, 1.0);
        EXPECT_NEAR(plainOf(index), row.maximum, 1e-9) << row.id;
    }
}

TEST_F(ParameterValue, followsTheParametersTaper) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const ParameterRow& row = parameterRows[i];
        if (row.taper == RowTaper::stepped)
            continue;
        // A hundredth is the step of the linear ones.
        const double plain =
            std::round((row.minimum + (row.maximum - row.minimum) * 0.3) * 100.0) / 100.0;
        for (const Vst::ParamID id : {static_cast<Vst::ParamID>(i), identifierOf(i)}) {
            const double position = instance.controller().plainParamToNormalized(id, plain);
            EXPECT_NEAR(position, positionOf(row, plain), 1e-12) << row.id;
            EXPECT_NEAR(instance.controller().normalizedParamToPlain(id, position), plain,
                        1e-9 * row.maximum)
                << row.id;
        }
    }
}

TEST_F(ParameterValue, ofALinearParameterIsAWholeNumberOfSteps) {
    EXPECT_NEAR(instance.controller().normalizedParamToPlain(13, 0.123456), 12.35, 1e-9);
    instance.setNormalised(13, 0.123456);
    EXPECT_NEAR(instance.normalised(13), 0.1235, 1e-12);
}

TEST_F(ParameterValue, ofASwitchIsOnOrOff) {
    for (const Vst::ParamID id : {0U, 3U, 7U}) {
        instance.setNormalised(id, 0.2);
        EXPECT_EQ(instance.normalised(id), 0.0);
        instance.setNormalised(id, 0.8);
        EXPECT_EQ(instance.normalised(id), 1.0);
        EXPECT_EQ(instance.controller().normalizedParamToPlain(id, 0.8), 1.0);
    }
}

TEST_F(ParameterValue, outsideOfTheRangeIsClamped) {
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const auto index = static_cast<Vst::ParamID>(i);
        for (const double value : {-0.1, -1e300, -infinity}) {
            instance.setNormalised(index, 0.5);
            EXPECT_EQ(instance.controller().setParamNormalized(index, value), kResultOk);
            EXPECT_EQ(instance.normalised(index), 0.0) << parameterRows[i].id << ' ' << value;
        }
        for (const double value : {1.1, 1e300, infinity}) {
            instance.setNormalised(index, 0.5);
            EXPECT_EQ(instance.controller().setParamNormalized(index, value), kResultOk);
            EXPECT_NEAR(instance.normalised(index), 1.0, 1e-12)
                << parameterRows[i].id << ' ' << value;
        }
    }
}

TEST_F(ParameterValue, thatIsNotANumberChangesNothing) {
    instance.set("gain", -3.0);
    const std::vector<double> before = all();
    for (Vst::ParamID id = 0; id < 15; ++id) {
        EXPECT_EQ(instance.controller().setParamNormalized(id, std::nan("")), kResultFalse) << id;
        EXPECT_EQ(instance.controller().setParamNormalized(id, -std::nan("")), kResultFalse) << id;
    }
    EXPECT_EQ(all(), before);
}

TEST_F(ParameterValue, ofAnUnknownParameterChangesNothing) {
    const std::vector<double> before = all();
    for (const Vst::ParamID id :
         {15U, 16U, 1000U, 0x7FFFFFFFU, 0xFFFFFFFFU, fourCharCode("none"), fourCharCode("niag")}) {
        EXPECT_EQ(instance.controller().setParamNormalized(id, 0.25), kResultFalse) << id;
        EXPECT_EQ(instance.normalised(id), 0.0) << id;
        EXPECT_TRUE(std::isfinite(instance.controller().normalizedParamToPlain(id, 0.5))) << id;
        EXPECT_TRUE(std::isfinite(instance.controller().plainParamToNormalized(id, 0.5))) << id;
    }
    EXPECT_EQ(all(), before);
}

TEST_F(ParameterValue, setByTheHostDoesNotComeBackAsAnEdit) {
    EditRecorder host;
    EXPECT_EQ(instance.controller().setComponentHandler(&host), kResultOk);
    instance.set("gain", 3.0);
    instance.setNormalised(3, 0.0);
    EXPECT_EQ(host.lines, std::vector<std::string>());
    instance.controller().setComponentHandler(nullptr);
}

TEST_F(ParameterValue, isHeardInTheNextBlock) {
    instance.start();
    ModelTwin twin;
    const Audio input = testAudio(2, 512 * 6);
    Audio library;
    Audio model;
    for (std::size_t block = 0; block < 6; ++block) {
        const Audio part = partOf(input, block * 512, 512);
        const double gain = static_cast<double>(block) * 2.0 - 6.0;
        instance.set("gain", gain);
        instance.set("afre", 50.0 + gain);
        twin.set("gain", gain);
        twin.set("afre", 50.0 + gain);
        append(library, instance.render(part));
        append(model, twin.render(part));
    }
    EXPECT_TRUE(sameBits(library, model));
    ModelTwin unchanged;
    EXPECT_FALSE(sameBits(library, unchanged.render(input))); // it is audible at all
}

TEST_F(ParameterValue, setBeforeActivationIsHeardFromTheFirstSample) {
    instance.set("gain", -12.0);
    instance.set("osc1", 0.0);
    instance.start();
    ModelTwin twin;
    twin.set("gain", -12.0);
    twin.set("osc1", 0.0);
    twin.reset();
    const Audio input = testAudio(2, 4000);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_F(ParameterValue, ofTheBypassLetsTheInputThrough) {
    instance.setNormalised(0, 1.0);
    instance.start();
    const Audio input = testAudio(2, 2000);
    EXPECT_EQ(instance.render(input), input); // as numbers: a negative zero may lose its sign
}

TEST_F(ParameterValue, belongsToOneInstance) {
    LibraryInstance other;
    instance.set("gain", 12.0);
    EXPECT_EQ(other.normalised(14), 0.5);
}

TEST_F(ParameterValue, handlersAreHeldAndLetGo) {
    EditRecorder first;
    EditRecorder second;
    EXPECT_EQ(instance.controller().setComponentHandler(&first), kResultOk);
    EXPECT_GT(first.references(), 0U);
    EXPECT_EQ(instance.controller().setComponentHandler(&second), kResultOk);
    EXPECT_EQ(first.references(), 0U);
    EXPECT_EQ(instance.controller().setComponentHandler(nullptr), kResultOk);
    EXPECT_EQ(second.references(), 0U);
}
