#include <gtest/gtest.h>

#include <regex>

#include "TestSupport.h"
#include "core/PlistIO.h"
#include "ppd/PpdData.h"
#include "ppd/PpdDataEncoder.h"
#include "ppd/PpdFile.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::dataPath;
using OstrinTest::readFile;

namespace {

class PrinterData : public ::testing::Test {
protected:
    void SetUp() override {
        _ppd = PpdFile::initWithContentsOfFile(dataPath("ppd/printer-data.ppd"));
        ASSERT_TRUE(_ppd);
    }
    std::optional<std::string> read(std::string_view name) {
        return PpdData::ppdxReadData(_ppd->ppdFile(), name);
    }

    std::unique_ptr<PpdFile> _ppd;
    const std::string _rows = readFile(dataPath("ppd/rows.plist"));
    const std::string _large = readFile(dataPath("ppd/large.plist"));
};

// A PPD file holding only the attributes that carry data under name.
std::unique_ptr<PpdFile> ppdWithData(const OstrinTest::TemporaryDirectory& folder,
                                     std::string_view name, std::string_view data) {
    auto attributes = PpdDataEncoder::encode(name, data);
    EXPECT_TRUE(attributes);
    const std::string path = folder.file("data.ppd");
    OstrinTest::writeFile(path, "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n" +
                                    PpdDataEncoder::ppdLines(*attributes));
    return PpdFile::initWithContentsOfFile(path);
}

}  // namespace

TEST_F(PrinterData, ReadsAllChunksOfTheStream) {
    EXPECT_EQ(read("Rows"), _rows);
    EXPECT_EQ(PpdData::propertyListForCommand(_ppd->ppdFile(), "Rows"),
              PlistValue(PlistArray{PlistArray{"Tray1", "Number"}, PlistArray{"Tray2", "Number"},
                                    PlistArray{"TrayMSI", "Number"}}));
    // The output grows beyond its first 2048 bytes.
    ASSERT_GT(_large.size(), 2048u * 4);
    EXPECT_EQ(read("Large"), _large);
}

// The data ends at the first missing or empty chunk; without its first chunk there is none.
TEST_F(PrinterData, MissingOrEmptyChunksEndTheData) {
    for (const char* name : {"Late", "NoSuchData", ""}) EXPECT_FALSE(read(name)) << name;
    EXPECT_FALSE(PpdData::ppdxReadData(nullptr, "Rows"));
    EXPECT_EQ(read("Blank"), "");
    std::optional<std::string> gap = read("Gap");
    ASSERT_TRUE(gap);
    EXPECT_GT(gap->size(), 0u);
    EXPECT_LT(gap->size(), _large.size());
    EXPECT_EQ(_large.substr(0, gap->size()), *gap);
    for (const char* name : {"Late", "Gap", "Blank"}) EXPECT_FALSE(PpdData::propertyListForCommand(_ppd->ppdFile(), name)) << name;
}

TEST_F(PrinterData, CorruptChunkIsReportedAndTheDataIsNoPropertyList) {
    testing::internal::CaptureStderr();
    std::optional<std::string> data = read("Corrupt");
    const std::string errors = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::regex_search(errors, std::regex("^ERROR: inflate returned -3 \\(.+\\)\n")))
        << errors;
    ASSERT_TRUE(data);
    EXPECT_NE(*data, _large);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(PpdData::propertyListForCommand(_ppd->ppdFile(), "Corrupt"));
    testing::internal::GetCapturedStderr();
}

TEST(PrinterDataEncoding, BinaryPropertyListsRoundTrip) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue rows(PlistArray{PlistArray{"1-Coated 128gsm", "Custom_Off_Uncoated_Off_None_1"},
                                     PlistArray{"2-Thick 250gsm", "Custom_Off_Uncoated_Off_None_2"}});
    const std::string binary = PlistIO::serialize(rows, PlistIO::Format::Binary);
    auto ppd = ppdWithData(folder, "PrePostDevice", binary);
    ASSERT_TRUE(ppd);
    EXPECT_EQ(PpdData::ppdxReadData(ppd->ppdFile(), "PrePostDevice"), binary);
    EXPECT_EQ(PpdData::propertyListForCommand(ppd->ppdFile(), "PrePostDevice"), rows);
}

TEST(PrinterDataEncoding, OutputStopsGrowingBeyondSixteenMegabytes) {
    OstrinTest::TemporaryDirectory folder;
    const std::string zeros(17u << 20, '\0');
    auto ppd = ppdWithData(folder, "Huge", zeros);
    ASSERT_TRUE(ppd);
    std::optional<std::string> data = PpdData::ppdxReadData(ppd->ppdFile(), "Huge");
    ASSERT_TRUE(data);
    // 256 doubles to 2048, then grows by 2048 up to the first size beyond 16,777,215.
    EXPECT_EQ(data->size(), 16777216u);
}

TEST(PrinterDataEncoding, ChunksFitTheReaderAndPpdLines) {
    const std::string data = readFile(dataPath("ppd/large.plist"));
    auto attributes = PpdDataEncoder::encode("CMYKInputProfileFile-MEASUREMENT", data);
    ASSERT_TRUE(attributes);
    ASSERT_GT(attributes->size(), 2u);
    EXPECT_EQ(attributes->front().name, "CMYKInputProfileFile-MEASUREMENT0000");
    EXPECT_EQ((*attributes)[1].name, "CMYKInputProfileFile-MEASUREMENT0001");
    for (const auto& attribute : *attributes) EXPECT_LE(attribute.value.size(), 208u);
    const std::string lines = PpdDataEncoder::ppdLines(*attributes);
    std::size_t start = 0;
    for (std::size_t end; (end = lines.find('\n', start)) != std::string::npos; start = end + 1)
        EXPECT_LE(end - start, 255u);
}

TEST(PrinterDataEncoding, RefusesNamesThatCannotMakePpdKeywords) {
    std::string error;
    EXPECT_FALSE(PpdDataEncoder::encode("", "x", &error));
    EXPECT_EQ(error, "the data name is empty");
    EXPECT_FALSE(PpdDataEncoder::encode(std::string(37, 'A'), "x", &error));
    EXPECT_NE(error.find("longer than 36 characters"), std::string::npos);
    EXPECT_FALSE(PpdDataEncoder::encode("Feeder:List", "x", &error));
    EXPECT_FALSE(PpdDataEncoder::encode("Feeder List", "x", &error));
    EXPECT_EQ(error, "the data name \"Feeder List\" is not a PPD keyword");
    EXPECT_TRUE(PpdDataEncoder::encode(std::string(36, 'A'), "x"));
}
