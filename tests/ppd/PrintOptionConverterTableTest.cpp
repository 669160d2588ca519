#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "PrintOptionTestSupport.h"
#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "ppd/PaperSize.h"
#include "ppd/PpdFile.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

PlistDictionary item(const char* optionKeyword, PlistValue tagValue) {
    return {{"optionKeyword", optionKeyword}, {"tagValue", std::move(tagValue)}};
}

// A bundle of its own whose conversion table is the one given.
class TableBundle {
public:
    explicit TableBundle(const PlistDictionary& table) {
        const std::string contents = _folder.file("Table.bundle/Contents");
        std::filesystem::create_directories(contents + "/Resources");
        PlistIO::writeFile(contents + "/Info.plist", PlistDictionary{{"CFBundleName", "TableTest"}});
        PlistIO::writeFile(contents + "/Resources/miscellaneous.plist",
                           PlistDictionary{{"TableTest", PlistDictionary{{"convertTableFileName", "Table"}}}});
        PlistIO::writeFile(contents + "/Resources/Table.plist", table);
        SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(_folder.file("Table.bundle")));
    }
    ~TableBundle() { SetNSBundleForPrincipalBundle(nullptr); }

    std::string tablePath() const { return _folder.file("Table.bundle/Contents/Resources/Table.plist"); }

private:
    OstrinTest::TemporaryDirectory _folder;
};

class ProductBundle : public ::testing::Test {
protected:
    void SetUp() override { SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR)); }
    void TearDown() override { SetNSBundleForPrincipalBundle(nullptr); }

    PrintOptionConverter& converter = PrintOptionConverter::sharedInstance();
};

const PlistDictionary kTrayEntry{
    {"tagKey", "PP_TRAY"},
    {"items", PlistArray{item("AutoSelect", 0), item("TrayMSI", 5), item("Tray%d", 0), item("TrayStk", 40)}}};

PlistDictionary ppdFormat(const PlistDictionary& inputMgrOption) {
    return PrintOptionConverter::sharedInstance().toPpdKeywordFormat(inputMgrOption);
}

PlistDictionary inputMgrFormat(const PlistDictionary& ppdOption) {
    return PrintOptionConverter::sharedInstance().toInputMgrFormat(ppdOption);
}

}  // namespace

TEST(PrintOptionConverterTable, ItemsMapTagValuesToOptionKeywordsAsIntegers) {
    TableBundle bundle({{"QVInputSlot", kTrayEntry}});
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "0"}}), (PlistDictionary{{"QVInputSlot", "AutoSelect"}}));
    EXPECT_EQ(ppdFormat({{"PP_TRAY", 5}}), (PlistDictionary{{"QVInputSlot", "TrayMSI"}}));
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "05"}}), (PlistDictionary{{"QVInputSlot", "TrayMSI"}}));
    // The numbered pattern stops the walk: items after it are never reached.
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "3"}}), (PlistDictionary{{"QVInputSlot", "Tray3"}}));
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "40"}}), (PlistDictionary{{"QVInputSlot", "Tray40"}}));
    EXPECT_EQ(ppdFormat({{"PP_OTHER", "3"}}), PlistDictionary());
    auto& converter = PrintOptionConverter::sharedInstance();
    EXPECT_EQ(converter.inputMgrTagValue("QVInputSlot", "TrayMSI"), PlistValue(5));
    EXPECT_EQ(converter.inputMgrTagValue("QVInputSlot", "Tray7"), PlistValue(7));
    EXPECT_EQ(converter.inputMgrTagValue("QVInputSlot", "Bin"), std::nullopt);
    EXPECT_EQ(converter.inputMgrTagValue("OutputTray", "Bin"), std::nullopt);
}

// Toward the input manager the digits run to the end of the keyword.
TEST(PrintOptionConverterTable, NumberedPatternSubtractsItsTagValue) {
    TableBundle bundle({{"PunchHoles", PlistDictionary{{"tagKey", "FN_HOLES"},
                                                       {"items", PlistArray{item("None", 0), item("Holes%d", "10")}}}},
                        {"Flag", PlistDictionary{{"tagKey", "FN_FLAG"}, {"items", PlistArray{item("On", 1)}}}},
                        {"RotationAngle", PlistDictionary{{"tagKey", "IM_ROTATE"}, {"items", PlistArray{item("%d", 0)}}}}});
    EXPECT_EQ(ppdFormat({{"FN_HOLES", "13"}, {"FN_FLAG", "2"}}), (PlistDictionary{{"PunchHoles", "Holes3"}}));
    EXPECT_EQ(ppdFormat({{"FN_HOLES", "0"}}), (PlistDictionary{{"PunchHoles", "None"}}));
    EXPECT_EQ(ppdFormat({{"FN_HOLES", "4"}}), (PlistDictionary{{"PunchHoles", "Holes-6"}}));
    EXPECT_EQ(inputMgrFormat({{"PunchHoles", "Holes3"}}), (PlistDictionary{{"FN_HOLES", 13}}));
    EXPECT_EQ(inputMgrFormat({{"PunchHoles", "None"}}), (PlistDictionary{{"FN_HOLES", 0}}));
    EXPECT_EQ(inputMgrFormat({{"PunchHoles", "Holes"}}), (PlistDictionary{{"FN_HOLES", 10}}));
    EXPECT_EQ(inputMgrFormat({{"PunchHoles", "Staple2"}}), PlistDictionary());
    EXPECT_EQ(inputMgrFormat({{"Flag", true}}), PlistDictionary());
    EXPECT_EQ(inputMgrFormat({{"RotationAngle", "Rotate270"}}), (PlistDictionary{{"IM_ROTATE", 270}}));
    EXPECT_EQ(inputMgrFormat({{"RotationAngle", "A1_2"}}), (PlistDictionary{{"IM_ROTATE", 1}}));
    EXPECT_EQ(inputMgrFormat({{"RotationAngle", "Upright"}}), (PlistDictionary{{"IM_ROTATE", 0}}));
}

TEST(PrintOptionConverterTable, FirstEntryInTableOrderWinsForASharedTagKey) {
    {
        TableBundle bundle({{"InputSlot", kTrayEntry}, {"QVInputSlot", kTrayEntry}});
        EXPECT_EQ(ppdFormat({{"PP_TRAY", "2"}}), (PlistDictionary{{"InputSlot", "Tray2"}}));
    }
    TableBundle bundle({{"QVInputSlot", kTrayEntry}, {"InputSlot", kTrayEntry}});
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "2"}}), (PlistDictionary{{"QVInputSlot", "Tray2"}}));
    // Both PPD keywords convert; the later one in the input sets the tag last.
    EXPECT_EQ(inputMgrFormat({{"InputSlot", "Tray1"}, {"QVInputSlot", "TrayMSI"}}), (PlistDictionary{{"PP_TRAY", 5}}));
}

TEST(PrintOptionConverterTable, BooleansAreTrueOnlyForOne) {
    TableBundle bundle({{"SecPrint", PlistDictionary{{"tagKey", "SC_SECURE"}, {"tagValueType", "Boolean"}}}});
    EXPECT_EQ(ppdFormat({{"SC_SECURE", "1"}}), (PlistDictionary{{"SecPrint", true}}));
    EXPECT_EQ(ppdFormat({{"SC_SECURE", "2"}}), (PlistDictionary{{"SecPrint", false}}));
    EXPECT_EQ(ppdFormat({{"SC_SECURE", true}}), (PlistDictionary{{"SecPrint", true}}));
    EXPECT_EQ(inputMgrFormat({{"SecPrint", "True"}}), (PlistDictionary{{"SC_SECURE", true}}));
    EXPECT_EQ(inputMgrFormat({{"SecPrint", "TRUE"}}), (PlistDictionary{{"SC_SECURE", true}}));
    EXPECT_EQ(inputMgrFormat({{"SecPrint", "False"}}), (PlistDictionary{{"SC_SECURE", false}}));
    EXPECT_EQ(inputMgrFormat({{"SecPrint", "yes"}}), (PlistDictionary{{"SC_SECURE", false}}));
}

TEST(PrintOptionConverterTable, MagnificationDividesAndFormatsTowardThePpd) {
    TableBundle bundle({{"Magnification", PlistDictionary{{"tagKey", "IM_MAG"}, {"magnification", "0.1"},
                                                          {"format", "0"}}},
                        {"HairLineWarningPoint", PlistDictionary{{"tagKey", "CL_HAIRLINE"}, {"magnification", 3}}},
                        {"Ratio", PlistDictionary{{"tagKey", "RATIO"}, {"magnification", "4"}, {"format", "0.00"}}},
                        {"Zero", PlistDictionary{{"tagKey", "ZERO"}, {"magnification", "0"}, {"format", "0"}}}});
    EXPECT_EQ(ppdFormat({{"IM_MAG", "75.5"}, {"CL_HAIRLINE", "10"}, {"RATIO", 5}, {"ZERO", "1"}}),
              (PlistDictionary{{"Magnification", "755"}, {"HairLineWarningPoint", "3"}, {"Ratio", "1.25"}}));
    // The formatter rounds half to even: 0.25 / 0.1 is 2.5 -> 2, 0.35 / 0.1 is 3.5 -> 4.
    EXPECT_EQ(ppdFormat({{"IM_MAG", "0.25"}}), (PlistDictionary{{"Magnification", "2"}}));
    EXPECT_EQ(ppdFormat({{"IM_MAG", "0.35"}}), (PlistDictionary{{"Magnification", "4"}}));
    EXPECT_EQ(ppdFormat({{"IM_MAG", "large"}}), PlistDictionary());
}

TEST(PrintOptionConverterTable, MagnificationMultipliesExactlyTowardTheInputManager) {
    TableBundle bundle({{"Magnification", PlistDictionary{{"tagKey", "IM_MAG"}, {"magnification", "0.1"}}},
                        {"ChgPrintPaperSizeWidth", PlistDictionary{{"tagKey", "PP_CUSTW"}, {"magnification", "0.1"}}}});
    EXPECT_EQ(inputMgrFormat({{"Magnification", "755"}, {"ChgPrintPaperSizeWidth", "119055"}}),
              (PlistDictionary{{"IM_MAG", "75.5"}, {"PP_CUSTW", "11905.5"}}));
    EXPECT_EQ(inputMgrFormat({{"Magnification", "3"}}), (PlistDictionary{{"IM_MAG", "0.3"}}));
    EXPECT_EQ(inputMgrFormat({{"Magnification", 1}}), (PlistDictionary{{"IM_MAG", true}}));
}

// Texts pass unchanged but for a format of their own; toward the PPD the yen sign becomes a backslash.
TEST(PrintOptionConverterTable, FormatAloneRewritesTheNumberAndYenSignBecomesBackslash) {
    TableBundle bundle({{"CreaseNum", PlistDictionary{{"tagKey", "FN_CRSNUM"}, {"format", "0"}}},
                        {"UserName", PlistDictionary{{"tagKey", "JB_USER"}}}});
    EXPECT_EQ(ppdFormat({{"FN_CRSNUM", "3.0"}, {"JB_USER", "SALES\xC2\xA5kim\xC2\xA5"}}),
              (PlistDictionary{{"CreaseNum", "3"}, {"UserName", "SALES\\kim\\"}}));
    EXPECT_EQ(inputMgrFormat({{"CreaseNum", "3"}, {"UserName", "SALES\xC2\xA5kim"}}),
              (PlistDictionary{{"FN_CRSNUM", "3"}, {"JB_USER", "SALES\xC2\xA5kim"}}));
}

TEST(PrintOptionConverterTable, RgbColourModeSetsTheCorrectionAndDropsAutoKeys) {
    TableBundle bundle({{"QZSRGBAuto", PlistDictionary{{"tagKey", "CL_SRGBAUTO"}, {"tagValueType", "Boolean"}}},
                        {"QZSRGBAutoType", PlistDictionary{{"tagKey", "CL_SRGBAUTOTYPE"}}}});
    const char* corrections[] = {"None",           "sRGB",           "RGB",           "AdobeRGB",
                                 "sRGBAutoAdjust", "sRGBAutoPerson", "sRGBAutoScene", "sRGBAutoOnSitePhoto"};
    for (int mode = 0; mode < 8; ++mode)
        EXPECT_EQ(ppdFormat({{"CL_RGBMD", mode}, {"CL_SRGBAUTO", "1"}, {"CL_SRGBAUTOTYPE", "Scene"}}),
                  (PlistDictionary{{"QZRGBColorCorrect", corrections[mode]}}));
    EXPECT_EQ(ppdFormat({{"CL_RGBMD", "8"}, {"CL_SRGBAUTO", "1"}}), PlistDictionary());
    EXPECT_EQ(ppdFormat({{"CL_SRGBAUTO", "1"}}), (PlistDictionary{{"QZSRGBAuto", true}}));
}

TEST(PrintOptionConverterTable, SaveFileTypeCarriesTheResolution) {
    TableBundle bundle({});
    EXPECT_EQ(ppdFormat({{"SP_SAVEFT", "0"}}), (PlistDictionary{{"QZSaveFile", "None"}}));
    EXPECT_EQ(ppdFormat({{"SP_SAVEFT", "1"}}), (PlistDictionary{{"QZSaveFile", "TIFF600dpi"}}));
    EXPECT_EQ(ppdFormat({{"SP_SAVEFT", "2"}, {"SP_TFDPI", "1200"}}), (PlistDictionary{{"QZSaveFile", "PDF1200dpi"}}));
    EXPECT_EQ(ppdFormat({{"SP_SAVEFT", 1}, {"SP_TFDPI", "0"}}), (PlistDictionary{{"QZSaveFile", "TIFF600dpi"}}));
    EXPECT_EQ(ppdFormat({{"SP_SAVEFT", "3"}}), PlistDictionary());
}

TEST(PrintOptionConverterTable, TableIsReadAgainOnEachConversionAndWithoutItNothingConverts) {
    {
        TableBundle bundle({{"QVInputSlot", kTrayEntry}});
        EXPECT_EQ(ppdFormat({{"PP_TRAY", "5"}}), (PlistDictionary{{"QVInputSlot", "TrayMSI"}}));
        PlistIO::writeFile(bundle.tablePath(), PlistDictionary{{"InputSlot", kTrayEntry}});
        EXPECT_EQ(ppdFormat({{"PP_TRAY", "5"}}), (PlistDictionary{{"InputSlot", "TrayMSI"}}));
        std::filesystem::remove(bundle.tablePath());
        EXPECT_FALSE(PrintOptionConverter::sharedInstance().convertTable());
        EXPECT_EQ(ppdFormat({{"PP_TRAY", "5"}, {"SP_SAVEFT", "0"}}), PlistDictionary());
        EXPECT_EQ(inputMgrFormat({{"QVInputSlot", "Tray1"}}), PlistDictionary());
    }
    EXPECT_EQ(ppdFormat({{"PP_TRAY", "5"}}), PlistDictionary());
    EXPECT_EQ(ToPpdKeywordFormat(nullptr), std::nullopt);
    EXPECT_EQ(ToInputMgrFormat(nullptr), std::nullopt);
}

TEST_F(ProductBundle, ShippedTableConvertsThePressesSettingsToPpdChoices) {
    const PlistDictionary inputMgrOption{
        {"JB_DUPLEX", "2"},     {"PP_TRAY", "5"},        {"PP_SIZE", "3"},         {"PP_CUSTW", "11905.5"},
        {"FN_STAPLE", "13"},    {"FN_HOLES", "3"},       {"CL_RGBMD", "4"},        {"CL_SRGBAUTO", "1"},
        {"SP_SAVEFT", "2"},     {"SP_TFDPI", "300"},     {"IM_MAG", "75.5"},       {"IM_ROTATE", "90"},
        {"CL_HAIRLINE", "1000"}, {"SC_SECURE", "1"},     {"JB_USER", "SALES\xC2\xA5kim"}, {"PP_CUSTNO", "7"},
        {"UNKNOWN", "1"}};
    EXPECT_EQ(ConverterTest::entriesOf(*ToPpdKeywordFormat(&inputMgrOption)),
              ConverterTest::entriesOf({{"DuplexMode", "DuplexTumble"}, {"QVInputSlot", "TrayMSI"},
                                        {"ChgPrintPaperSizeType", "A4SEF"}, {"ChgPrintPaperSizeWidth", "119055"},
                                        {"StapleMode", "Saddle"}, {"PunchHoles", "Holes3"},
                                        {"QZRGBColorCorrect", "sRGBAutoAdjust"}, {"QZSaveFile", "PDF300dpi"},
                                        {"QZSaveFile_DPI", "300"}, {"Magnification", "755"},
                                        {"RotationAngle", "Rotate90"}, {"HairLineWarningPoint", "100"},
                                        {"SecPrint", true}, {"UserName", "SALES\\kim"}, {"PaperTypeCustomNumber", "7"}}));
}

TEST_F(ProductBundle, ShippedTableConvertsPpdChoicesBackToTags) {
    const PlistDictionary ppdOption{
        {"DuplexMode", "DuplexNoTumble"}, {"QVInputSlot", "Tray3"},      {"ChgPrintPaperSizeType", "Kikuban8LEF"},
        {"OutputTray", "Stackertray"},    {"Punch", "Right"},            {"PunchHoles", "HolesMulti"},
        {"QZSaveFile", "TIFF1200dpi"},    {"Magnification", "1000"},     {"SecPrint", "False"},
        {"PageRegion", "A4"},             {"PageSize", "A4"},            {"PaperTypeCustomNumber", "None"},
        {"StkType", "Name"}};
    EXPECT_EQ(ConverterTest::entriesOf(*ToInputMgrFormat(&ppdOption)),
              ConverterTest::entriesOf({{"JB_DUPLEX", 1}, {"PP_TRAY", 3}, {"PP_SIZE", 108}, {"FN_OUTBIN", 2},
                                        {"FN_PUNCH", 2}, {"FN_HOLES", 9}, {"SP_SAVEFT", 1}, {"IM_MAG", "100"},
                                        {"SC_SECURE", false}, {"PP_PGSIZE", 3}, {"PP_CUSTNO", 0}}));
    EXPECT_EQ(converter.inputMgrTagValue("ChgPrintPaperSizeType", "A3"), PlistValue(1));
    EXPECT_EQ(converter.inputMgrTagValue("CoverPageTray", "TrayAuto"), PlistValue(0));
}

// Every paper size that the press offers has the type number of the paper size table.
TEST_F(ProductBundle, ShippedTableUsesThePaperTypeNumbers) {
    for (const char* name : {"A3", "A4LEF", "B5SEF", "Hagaki", "260x190", "Envchou2SEF"}) {
        const auto record = PrintOptionConverter::getCepSizeFromPaperSizeType(name);
        ASSERT_TRUE(record) << name;
        EXPECT_EQ(converter.inputMgrTagValue("ChgPrintPaperSizeType", name),
                  PlistValue(std::stoi(record->stringFor("typeNum", ""))))
            << name;
    }
}

// Every PPD keyword of the shipped table is an option or choice of the sample PPD, apart
// from the options the panel describes itself because the PPD does not declare them.
TEST_F(ProductBundle, ShippedTableNamesOnlyOptionsAndChoicesOfTheSamplePpd) {
    auto ppd = PpdFile::initWithContentsOfFile(std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd");
    ASSERT_TRUE(ppd);
    const auto table = converter.convertTable();
    ASSERT_TRUE(table);
    EXPECT_GE(table->size(), 60u);
    const std::set<std::string> panelOwnOptions{"QZSRGBAuto", "QZSRGBAutoType", "QZSaveFile_DPI"};
    for (const auto& [mainKeyword, entry] : *table) {
        ASSERT_TRUE(entry.dictionary()) << mainKeyword;
        EXPECT_TRUE(entry.dictionary()->stringFor("tagKey")) << mainKeyword;
        if (panelOwnOptions.contains(mainKeyword)) continue;
        EXPECT_TRUE(ppd->isExists(mainKeyword)) << mainKeyword;
        if (entry.dictionary()->stringFor("tagValueType", "") == "Boolean") {
            EXPECT_EQ(ppd->uiType(mainKeyword), 0) << mainKeyword;
        }
        const PlistValue* items = entry.dictionary()->find("items");
        if (!items) continue;
        for (const PlistValue& item : *items->array()) {
            const std::string optionKeyword = item.dictionary()->stringFor("optionKeyword", "");
            if (optionKeyword.ends_with("%d")) continue;
            EXPECT_TRUE(ppd->isExists(mainKeyword, optionKeyword)) << mainKeyword << " " << optionKeyword;
        }
    }
}

TEST(PaperSize, RecordGivesTypeNumberHeightAndWidthAsStringsForExactNamesOnly) {
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("A4LEF"),
              (PlistDictionary{{"typeNum", "2"}, {"height", "119056"}, {"width", "168378"}}));
    EXPECT_EQ(PrintOptionConverter::getCepSizeFromPaperSizeType("Envchou2SEF"),
              (PlistDictionary{{"typeNum", "134"}, {"height", "157040"}, {"width", "67465"}}));
    for (const char* name : {"a4lef", "A4lef", "Custom", "NoChange", "", " A4LEF", "A4"})
        EXPECT_FALSE(PrintOptionConverter::getCepSizeFromPaperSizeType(name)) << name;
}

// Names are unique (the first match wins). Long-edge-feed sheets lie across the feed;
// short-edge-feed and plain names stand up, except the sizes the press feeds across
// although their names carry no suffix.
TEST(PaperSize, EveryNameIsUniqueAndLongEdgeFeedSizesAreWiderThanHigh) {
    const std::set<std::string_view> lyingWithoutSuffix{"A4Booklet", "B5Booklet", "A5Booklet", "85x110Booklet", "260x180",
                                                        "A6Booklet", "B6Booklet", "260x190",   "16KaiLEFC"};
    std::set<std::string_view> names;
    for (const PaperSize& size : PaperSize::all()) {
        EXPECT_TRUE(names.insert(size.name).second) << size.name;
        const bool lying = std::string_view(size.name).ends_with("LEF") || lyingWithoutSuffix.contains(size.name);
        EXPECT_EQ(size.height < size.width, lying) << size.name;
    }
}
