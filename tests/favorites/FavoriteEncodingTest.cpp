#include <gtest/gtest.h>

#include "FavoriteTestSupport.h"
#include "TestSupport.h"
#include "core/Diagnostics.h"
#include "favorites/FavoriteFile.h"
#include "favorites/StringEncoding.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::dataPath;

namespace {

std::string writeAndReadBack(const OstrinTest::TemporaryDirectory& folder, const std::string& comment,
                             const PlistDictionary& options, FavoriteFile& readBack) {
    const std::string path = folder.file("favorite.pqz");
    FavoriteFile favorite;
    favorite.setComment(comment);
    favorite.setOptions(options);
    favorite.writeToFile(path);
    readBack = FavoriteFile(path);
    return OstrinTest::readFile(path);
}

}  // namespace

// Japanese goes to disk in code page 932 under code 0 and reads back as Shift JIS;
// simplified Chinese carries its own code 4.
TEST(FavoriteEncoding, AsianTextRoundTripsUnderItsLanguageCode) {
    const struct {
        const char* language;
        const char* comment;
        PlistDictionary options;
        const char* header;
        std::string commentBytes;
        int encoding;
    } cases[] = {
        {"ja-JP", "会議用の両面印刷", {{"JobName", "見積書\\2024~最終"}, {"NumCopies", "2"}}, "2\n13\n0\n",
         "\x89\xef\x8b\x63", 0},
        {"zh-CN", "双面打印", {{"JobName", "报价单"}}, "2\n13\n4\n", "\xcb\xab\xc3\xe6", 4},
    };
    for (const auto& probe : cases) {
        OstrinTest::useProductStrings(probe.language);
        OstrinTest::TemporaryDirectory folder;
        FavoriteFile readBack;
        const std::string bytes = writeAndReadBack(folder, probe.comment, probe.options, readBack);
        EXPECT_EQ(bytes.rfind(probe.header, 0), 0u) << probe.language;
        EXPECT_NE(bytes.find(probe.commentBytes), std::string::npos) << probe.language;
        EXPECT_EQ(readBack.encoding(), probe.encoding);
        EXPECT_EQ(readBack.comment(), probe.comment);
        EXPECT_EQ(readBack.options(), probe.options);
    }
}

TEST(FavoriteEncoding, ReadsEachLanguageCodeInItsEncoding) {
    const struct {
        const char* fixture;
        int version;
        int encoding;
        const char* comment;
        PlistDictionary options;
    } cases[] = {
        {"windows-latin.pqz", 2, 3, "Café für Müller – 5 €", {{"JobName", "Façade"}, {"OutputTray", "Tray1"}}},
        {"euc-jp.pqz", 2, 2, "会議用の両面印刷", {{"JobName", "見積書"}, {"DuplexMode", "DuplexNoTumble"}}},
        // A version 1 file has no language code and reads as Shift JIS.
        {"version-1.pqz", 1, -1, "旧版のお気に入り", {{"JobName", "テスト"}}},
    };
    for (const auto& probe : cases) {
        const FavoriteFile favorite(dataPath(std::string("favorites/") + probe.fixture));
        EXPECT_EQ(favorite.version(), probe.version) << probe.fixture;
        EXPECT_EQ(favorite.encoding(), probe.encoding) << probe.fixture;
        EXPECT_EQ(favorite.comment(), probe.comment) << probe.fixture;
        EXPECT_EQ(favorite.options(), probe.options) << probe.fixture;
    }
}

// A Roman system writes code page 850 under code 0, so the file reads back as Shift JIS and
// a German umlaut does not survive, as favorites of a Roman system always behaved; what the
// local encoding lacks becomes "?" and is logged.
TEST(FavoriteEncoding, RomanSystemWritesCodePage850AndQuestionMarksForWhatItLacks) {
    const struct {
        const char* language;
        const char* comment;
        PlistDictionary options;
        std::string bytes;
        bool logged;
    } cases[] = {
        {"de-DE", "Müller", {{"A", "1"}}, "2\n13\n0\nComment=M\x81ller\nA=1\t\t", false},
        {"en", "5 €", {{"JobName", "報告"}}, "2\n13\n0\nComment=5 ?\nJobName=??\t\t", true},
    };
    for (const auto& probe : cases) {
        OstrinTest::useProductStrings(probe.language);
        OstrinTest::TemporaryDirectory folder;
        std::vector<std::string> lines;
        Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
        FavoriteFile readBack;
        const std::string bytes = writeAndReadBack(folder, probe.comment, probe.options, readBack);
        Diagnostics::setObserver({});
        EXPECT_EQ(bytes, probe.bytes) << probe.language;
        EXPECT_NE(readBack.comment(), probe.comment);
        EXPECT_EQ(!lines.empty() && lines.back().find("cannot hold") != std::string::npos, probe.logged);
    }
}

TEST(FavoriteEncoding, OtherScriptLogsAndWritesShiftJis) {
    OstrinTest::useProductStrings("ru-RU");
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    EXPECT_EQ(StringEncodings::stringEncodingForLocal(), StringEncoding::None);
    Diagnostics::setObserver({});
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "### system encoding=0x362, ns encoding=0x0");
    EXPECT_EQ(lines[1], "### IANA \"IBM866\"");
    EXPECT_EQ(lines[2], "### localizedName \"Cyrillic (DOS)\"");
    // Cyrillic is in code page 932, so the favorite still reads back whole.
    OstrinTest::TemporaryDirectory folder;
    FavoriteFile readBack;
    writeAndReadBack(folder, "Отчёт", {{"A", "1"}}, readBack);
    EXPECT_EQ(readBack.comment(), "Отчёт");
}

TEST(FavoriteEncoding, LocalEncodingFollowsThePreferredLanguage) {
    const std::pair<const char*, StringEncoding> cases[] = {{"en", StringEncoding::DOSLatin1},
                                                            {"fr-CA", StringEncoding::DOSLatin1},
                                                            {"ja", StringEncoding::DOSJapanese},
                                                            {"ko-KR", StringEncoding::DOSKorean},
                                                            {"zh-TW", StringEncoding::DOSChineseTrad},
                                                            {"zh-Hant", StringEncoding::DOSChineseTrad},
                                                            {"zh-CN", StringEncoding::DOSChineseSimplif},
                                                            {"zh", StringEncoding::DOSChineseSimplif},
                                                            {"el", StringEncoding::None}};
    for (const auto& [language, encoding] : cases) {
        OstrinTest::useProductStrings(language);
        EXPECT_EQ(StringEncodings::stringEncodingForLocal(), encoding) << language;
    }
}

TEST(FavoriteEncoding, UndecodableBytesBecomeReplacementCharacters) {
    EXPECT_EQ(StringEncodings::decode("a\x81", StringEncoding::ShiftJIS), "a\xEF\xBF\xBD");
    EXPECT_FALSE(StringEncodings::decodeStrictly("a\xff", StringEncoding::UTF8));
    EXPECT_EQ(StringEncodings::decodeStrictly("\x82", StringEncoding::DOSLatin1), "é");
}
