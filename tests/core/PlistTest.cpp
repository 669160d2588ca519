#include <gtest/gtest.h>

#include "TestSupport.h"
#include "core/PlistIO.h"
#include "core/PlistValue.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

PlistDictionary sampleDictionary() {
    return PlistDictionary{{"Zeta", "last letter first"},   {"Alpha", true}, {"Count", -42}, {"Ratio", 2.5},
                           {"List", PlistArray{"a", 1, false}}, {"Nested", PlistDictionary{{"inner", "x"}}}};
}

}  // namespace

TEST(PlistDictionary, KeepsInsertionOrderAndLookupThroughReplaceAndErase) {
    PlistDictionary dictionary{{"b", "1"}, {"a", "2"}, {"c", "3"}};
    dictionary.set("a", "replaced");
    dictionary.set("d", "4");
    EXPECT_EQ(dictionary.keys(), (std::vector<std::string>{"b", "a", "c", "d"}));
    EXPECT_EQ(dictionary.stringFor("a", ""), "replaced");
    EXPECT_TRUE(dictionary.erase("b"));
    EXPECT_FALSE(dictionary.erase("b"));
    EXPECT_EQ(dictionary.stringFor("c", ""), "3");
    dictionary.set("c", "changed");
    EXPECT_EQ(dictionary.keys(), (std::vector<std::string>{"a", "c", "d"}));
    EXPECT_EQ(dictionary.stringFor("c", ""), "changed");
    dictionary.set("flag", true);
    EXPECT_FALSE(dictionary.stringFor("flag").has_value());
    EXPECT_EQ(dictionary.stringFor("missing", "fallback"), "fallback");
}

TEST(PlistIO, XmlAndBinaryRoundTripKeepOrderAndNegativeIntegers) {
    const PlistValue original = sampleDictionary();
    for (auto format : {PlistIO::Format::Xml, PlistIO::Format::Binary}) {
        auto parsed = PlistIO::parse(PlistIO::serialize(original, format));
        ASSERT_TRUE(parsed.has_value());
        EXPECT_EQ(*parsed, original);
        EXPECT_EQ(parsed->dictionary()->keys().front(), "Zeta");
    }
    OstrinTest::TemporaryDirectory folder;
    ASSERT_TRUE(PlistIO::writeFile(folder.file("settings.plist"), sampleDictionary(), PlistIO::Format::Binary));
    EXPECT_EQ(PlistIO::readFile(folder.file("settings.plist")), original);
}

TEST(PlistIO, MalformedOrEmptyInputAnswersNothing) {
    EXPECT_FALSE(PlistIO::parse("").has_value());
    EXPECT_FALSE(PlistIO::parse("<plist><dict><key>a</key>").has_value());
    EXPECT_FALSE(PlistIO::parse("bplist00\x01\x02").has_value());
    EXPECT_FALSE(PlistIO::readFile("/nonexistent/file.plist").has_value());
}

TEST(PlistIO, TextWithANulByteNeverAbortsTheReader) {
    using namespace std::string_literals;
    const std::string xml =
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>a</key><string>x\0y</string>"
        "</dict></plist>"s;
    EXPECT_FALSE(PlistIO::parse(xml).has_value());

    std::string binary = PlistIO::serialize(PlistDictionary{{"aQb", "yQz"}}, PlistIO::Format::Binary);
    for (char& byte : binary)
        if (byte == 'Q') byte = '\0';
    auto parsed = PlistIO::parse(binary);
    ASSERT_TRUE(parsed && parsed->dictionary());
    // An ASCII text ends at its NUL byte.
    EXPECT_EQ(parsed->dictionary()->stringFor("a", ""), "y");

    // A UTF-16 text whose characters include U+0000, found by fuzzing.
    EXPECT_TRUE(PlistIO::readFile(OstrinTest::dataPath("core/utf16-nul-string.bplist")).has_value());
}

TEST(PlistIO, NullEntriesAreLeftOutWhenWriting) {
    auto parsed = PlistIO::parse(PlistIO::serialize(PlistDictionary{{"kept", "yes"}, {"dropped", nullptr}}));
    ASSERT_TRUE(parsed && parsed->dictionary());
    EXPECT_EQ(parsed->dictionary()->keys(), std::vector<std::string>{"kept"});
}
