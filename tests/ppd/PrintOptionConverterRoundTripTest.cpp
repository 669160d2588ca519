#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "PrintOptionTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace ConverterTest;

namespace {

using Entries = std::map<std::string, PlistValue>;

PlistDictionary realisticInternalOptions() {
    auto value = PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"));
    EXPECT_TRUE(value && value->dictionary());
    return value && value->dictionary() ? *value->dictionary() : PlistDictionary();
}

struct Differences {
    Entries added;
    Entries removed;
    Entries changed;  // the new values
};

Differences differences(const PlistDictionary& before, const PlistDictionary& after) {
    Differences result;
    for (const auto& [key, value] : before) {
        const PlistValue* now = after.find(key);
        if (!now) {
            result.removed.emplace(key, value);
        } else if (!(*now == value)) {
            result.changed.emplace(key, *now);
        }
    }
    for (const auto& [key, value] : after)
        if (!before.contains(key)) result.added.emplace(key, value);
    return result;
}

std::string loginName() {
    const passwd* account = getpwuid(getuid());
    return account ? account->pw_name : "";
}

class RoundTrip : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override { PreferredLanguages::setFirst(GetParam()); }
    void TearDown() override { PreferredLanguages::setFirst(""); }
};

}  // namespace

// Going to the press and back keeps every setting of the panes, except where the two
// directions deliberately differ: the stacker types, the canonical overlay masks and
// graphics treatment keys, the imposition defaults and "Fitting" stay behind, the
// fitting key of the unused mode is dropped, and the login user replaces the typed one.
TEST_P(RoundTrip, InternalToCanonicalAndBackKeepsEverySettingOfThePanes) {
    const PlistDictionary original = realisticInternalOptions();
    ASSERT_GT(original.size(), 250u);
    const PlistDictionary restored = internal(canonical(original));
    const Differences found = differences(original, restored);
    EXPECT_EQ(found.removed, (Entries{{"ImpositionBooklet_Fitting", "False"}, {"AuthJobUserIdType", "Login"}}));
    EXPECT_EQ(found.changed, (Entries{{"AuthJobUserId", PlistValue(loginName())}}));
    EXPECT_EQ(found.added, (Entries{{"Fitting", "True"}, {"GraphicsTreatmentBase", "Job"}, {"GraphicsTreatmentMode", "Text"},
                                    {"SpTonerOverlayObjectFront", "60"}, {"SpTonerOverlayObjectBack", "0"},
                                    {"StkType", "Name"}, {"BlankPapersFrontStkType", "Name"},
                                    {"SeparatorsStkType", "Property"}, {"Imposition1stStkType", "Property"},
                                    {"CoverPageStkType", "Property"}, {"ImpositionAutoDuplex", "False"},
                                    {"FascicleMode", "None"}, {"NumberOfFascicle", "16"}, {"RotationAngle", "Rotate0"}}));
}

TEST_P(RoundTrip, CanonicalFormHoldsNoKeyOfThePanesOwn) {
    const PlistDictionary press = canonical(realisticInternalOptions());
    for (const char* key : {"Punch_PunchHoles", "PageOrder_new", "PaperType_MediaTypeTabbed",
                            "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_"
                            "MediaTypePreprintedBypass_MediaTypeDrilledBypass_PaperTypeCustomNumberBypass",
                            "SpTonerSpecifyColorFront_SpTonerColorFront", "SpTonerSpecifyColorBack_SpTonerColorBack",
                            "RenderingProfile", "AuthJobUserIdType", "ImpositionMode_ImpositionCustomMode",
                            "ImpositionNup_NumOfPages", "ImpositionNup_Fitting", "ImpositionBooklet_Fitting",
                            "ImpositionBooklet_LayoutBaseFile", "ImpositionBooklet_CreepTotalOffset"})
        EXPECT_FALSE(press.contains(key)) << key;
    // 4-up portrait on a 420 x 297 mm custom sheet: 210 x 148.5 mm finished pages.
    EXPECT_EQ(valuesOf(press, {"Punch", "PageOrder", "ImpositionCustomMode", "ChgPrintPaperSizeLength", "SheetSizeHeight",
                               "FinishedSizeHeight", "FinishedSizeWidth"}),
              (Strings{"Left", "Reverse", "Nup", "238110", "238110", "119055", "84189"}));
}

// Once in canonical form, further trips change nothing more.
TEST_P(RoundTrip, CanonicalFormIsStableUnderFurtherTrips) {
    const PlistDictionary press = canonical(realisticInternalOptions());
    EXPECT_EQ(entriesOf(canonical(internal(press))), entriesOf(press));
}

INSTANTIATE_TEST_SUITE_P(PrintOptionConverter, RoundTrip, ::testing::Values("en", "fr-FR", "ja"));
