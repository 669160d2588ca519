#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "TestSupport.h"
#include "core/PlistIO.h"
#include "ppd/PpdData.h"
#include "ppd/PpdFileExt.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string SamplePpdPath =
    std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";
const std::string DataSourceFolder = std::string(OSTRIN_SOURCE_DIR) + "/resources/ppd-data";

std::unique_ptr<PpdFileExt> openSample() {
    std::string error;
    auto ppd = PpdFileExt::initWithContentsOfFile(SamplePpdPath, &error);
    EXPECT_TRUE(ppd) << error;
    return ppd;
}

}  // namespace

TEST(SamplePpd, PassesCupstestppdWithAllWarningsChecked) {
    if (OstrinTest::runShell("command -v cupstestppd").exitCode != 0)
        GTEST_SKIP() << "cupstestppd is not installed (Debian package cups-client)";
    OstrinTest::ShellResult result = OstrinTest::runShell("cupstestppd -W all '" + SamplePpdPath + "'");
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_EQ(result.output.rfind(SamplePpdPath + ": PASS", 0), 0u) << result.output;
}

TEST(SamplePpd, DataAttributesDecodeToTheSourcePropertyLists) {
    auto ppd = openSample();
    ASSERT_TRUE(ppd);
    std::size_t dataSets = 0;
    for (const auto& entry : std::filesystem::directory_iterator(DataSourceFolder)) {
        if (entry.path().extension() != ".plist") continue;
        const std::string command = entry.path().stem().string();
        const std::string source = OstrinTest::readFile(entry.path().string());
        EXPECT_EQ(PpdData::ppdxReadData(ppd->ppdFile(), command), source) << command;
        EXPECT_EQ(PpdData::propertyListForCommand(ppd->ppdFile(), command),
                  PlistIO::parse(source))
            << command;
        ++dataSets;
    }
    EXPECT_EQ(dataSets, 29u);
}

TEST(SamplePpd, CustomPapersSplitIntoChoicesOfThePaperAttributes) {
    auto ppd = openSample();
    ASSERT_TRUE(ppd);
    auto papers = PpdData::propertyListForCommand(ppd->ppdFile(), "PrePostDevice");
    ASSERT_TRUE(papers && papers->isArray() && !papers->array()->empty());
    const char* parts[] = {"PaperType", "MediaTypeTabbed", "MediaTypeCoatingMaterial",
                           "MediaTypePreprinted", "MediaTypeDrilled", "PaperTypeCustomNumber"};
    for (const PlistValue& row : *papers->array()) {
        const std::string identifier = (*row.array())[1].stringOr("");
        std::size_t start = 0;
        for (const char* part : parts) {
            const std::size_t end = identifier.find('_', start);
            const std::string value = identifier.substr(start, end - start);
            start = end == std::string::npos ? end : end + 1;
            // "Custom" is a reserved choice name in libcups; it rides in the custom ticket.
            if (value != "Custom") {
                EXPECT_TRUE(ppd->isExists(part, value)) << part << "=" << value;
            }
        }
    }
}

TEST(SamplePpd, DeclaresTheChoicesTheConversionWrites) {
    auto ppd = openSample();
    ASSERT_TRUE(ppd);
    const std::pair<const char*, const char*> choices[] = {
        {"Punch", "None Left Right Top Bottom MixSize"},
        {"PunchHoles", "None Holes2 Holes3 Holes4 HolesMulti"},
        {"PageOrder", "Normal Reverse"},
        {"OutputMode", "FaceUp FaceDown"},
        {"StkType", "Name Property"},
        {"ImpositionMode", "Off Template Job"},
        {"ImpositionCustomMode", "Advanced Nup Booklet"},
        {"QZRGBColorCorrect", "None sRGB RGB AdobeRGB sRGBAutoAdjust sRGBAutoPerson sRGBAutoScene sRGBAutoOnSitePhoto"},
        {"SpTonerOverlayObjectFront", "0 3 12 15 48 51 60 63"},
        {"StapleMode", "TopLeftCorner MixSizeEdge Saddle RightCenter TopEdge4"},
        {"Fold", "Bifold ZfoldRightBind C_TrifoldInside Z_TrifoldOutside"}};
    for (const auto& [option, list] : choices) {
        std::istringstream words(list);
        for (std::string choice; words >> choice;) EXPECT_TRUE(ppd->isExists(option, choice)) << option << " " << choice;
    }
    for (const char* boolean : {"PagePrintOnCenter", "SpotColorCorrection", "CmykAdjustmentSpotColor",
                                "AutoTraySettingToBypass", "SecPrint", "AuthJob", "Fitting"})
        EXPECT_EQ(ppd->uiType(boolean), PpdUIBoolean) << boolean;
}

TEST(SamplePpd, TransparenciesCannotBePrintedTwoSided) {
    auto ppd = openSample();
    ASSERT_TRUE(ppd);
    ppd->markDefaults();
    EXPECT_EQ(ppd->markOption("QZMediaType", "Transparency"), 0);
    EXPECT_GT(ppd->markOption("DuplexMode", "DuplexTumble"), 0);
    EXPECT_EQ(ppd->markOption("QZMediaType", "Plain"), 0);
}
