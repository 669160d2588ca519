#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

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

namespace {

// A binary property list of levels arrays, each referring references times to the next,
// the last one empty: objects of one byte of type and count and four-byte references, then
// the offset table and the trailer.
std::string nestedBinaryList(std::uint32_t levels, std::uint32_t references = 1) {
    const auto bigEndian = [](std::string& bytes, std::uint64_t value, int width) {
        for (int shift = (width - 1) * 8; shift >= 0; shift -= 8) bytes += static_cast<char>((value >> shift) & 0xFF);
    };
    std::string bytes = "bplist00";
    std::vector<std::uint32_t> offsets;
    for (std::uint32_t level = 0; level < levels; ++level) {
        offsets.push_back(static_cast<std::uint32_t>(bytes.size()));
        if (level + 1 == levels) {
            bytes += '\xA0';
            break;
        }
        bytes += static_cast<char>(0xA0 | references);
        for (std::uint32_t reference = 0; reference < references; ++reference) bigEndian(bytes, level + 1, 4);
    }
    const std::uint64_t table = bytes.size();
    for (std::uint32_t offset : offsets) bigEndian(bytes, offset, 4);
    bytes += std::string(6, '\0') + "\x04\x04";
    bigEndian(bytes, levels, 8);
    bigEndian(bytes, 0, 8);
    bigEndian(bytes, table, 8);
    return bytes;
}

}  // namespace

// libplist reads and frees such lists one call per level and copies a shared object once
// per reference: each of these would overflow the stack, run for minutes or take gigabytes.
TEST(PlistIO, NestingFarDeeperThanAnyResourceOrSharingPastItsSizeAnswersNothing) {
    const auto nested = [](std::size_t levels, const char* open, const char* close, const char* inner = "") {
        std::string body;
        for (std::size_t level = 0; level < levels; ++level) body += open;
        body += inner;
        for (std::size_t level = 0; level < levels; ++level) body += close;
        return "<?xml version=\"1.0\"?><plist version=\"1.0\">" + body + "</plist>";
    };
    EXPECT_FALSE(PlistIO::parse(nested(400000, "<array>", "</array>")));
    EXPECT_FALSE(PlistIO::parse(nested(257, "<array>", "</array>")));
    auto deepest = PlistIO::parse(nested(256, "<array>", "</array>"));
    ASSERT_TRUE(deepest);
    EXPECT_TRUE(deepest->array());
    EXPECT_FALSE(PlistIO::parse(nested(300, "<dict><key>k</key>", "</dict>", "<string>x</string>")));
    EXPECT_TRUE(PlistIO::parse(nested(200, "<dict><key>k</key>", "</dict>", "<string>x</string>")));
    EXPECT_TRUE(PlistIO::parse(nestedBinaryList(256)));
    EXPECT_FALSE(PlistIO::parse(nestedBinaryList(257)));
    EXPECT_FALSE(PlistIO::parse(nestedBinaryList(400000)));
    EXPECT_TRUE(PlistIO::parse(nestedBinaryList(5, 2)));
    EXPECT_FALSE(PlistIO::parse(nestedBinaryList(40, 2)));
}

TEST(PlistIO, NullEntriesAreLeftOutWhenWriting) {
    auto parsed = PlistIO::parse(PlistIO::serialize(PlistDictionary{{"kept", "yes"}, {"dropped", nullptr}}));
    ASSERT_TRUE(parsed && parsed->dictionary());
    EXPECT_EQ(parsed->dictionary()->keys(), std::vector<std::string>{"kept"});
}
