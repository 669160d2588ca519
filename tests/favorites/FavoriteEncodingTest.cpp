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

TEST(FavoriteEncoding, JapaneseCommentAndValueRoundTrip) {
    OstrinTest::useProductStrings("ja-JP");
    OstrinTest::TemporaryDirectory folder;
    const PlistDictionary options{{"JobName", "見積書\\2024~最終"}, {"NumCopies", "2"}};
    FavoriteFile readBack;
    const std::string bytes = writeAndReadBack(folder, "会議用の両面印刷", options, readBack);
    // Code page 932 on disk, language code 0, read back as Shift JIS.
    EXPECT_EQ(bytes.substr(0, 7 + 8), "2\n13\n0\nComment=");
    EXPECT_NE(bytes.find("\x89\xef\x8b\x63"), std::string::npos);  // 会議
    EXPECT_EQ(readBack.encoding(), 0);
    EXPECT_EQ(readBack.comment(), "会議用の両面印刷");
    EXPECT_EQ(readBack.options(), options);
}

TEST(FavoriteEncoding, SimplifiedChineseWritesItsOwnLanguageCode) {
    OstrinTest::useProductStrings("zh-CN");
    OstrinTest::TemporaryDirectory folder;
    FavoriteFile readBack;
    const std::string bytes = writeAndReadBack(folder, "双面打印", {{"JobName", "报价单"}}, readBack);
    EXPECT_EQ(bytes.substr(0, 6), "2\n13\n4");
    EXPECT_EQ(readBack.encoding(), 4);
    EXPECT_EQ(readBack.comment(), "双面打印");
    EXPECT_EQ(readBack.options()->stringFor("JobName"), "报价单");
}

TEST(FavoriteEncoding, ReadsAWindowsLatinFile) {
    FavoriteFile favorite(dataPath("favorites/windows-latin.pqz"));
    EXPECT_EQ(favorite.encoding(), 3);
    EXPECT_EQ(favorite.comment(), "Café für Müller – 5 €");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"JobName", "Façade"}, {"OutputTray", "Tray1"}}));
}

TEST(FavoriteEncoding, ReadsAnEucJpFile) {
    FavoriteFile favorite(dataPath("favorites/euc-jp.pqz"));
    EXPECT_EQ(favorite.encoding(), 2);
    EXPECT_EQ(favorite.comment(), "会議用の両面印刷");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"JobName", "見積書"}, {"DuplexMode", "DuplexNoTumble"}}));
}

TEST(FavoriteEncoding, VersionOneReadsAsShiftJis) {
    FavoriteFile favorite(dataPath("favorites/version-1.pqz"));
    EXPECT_EQ(favorite.version(), 1);
    EXPECT_EQ(favorite.encoding(), -1);
    EXPECT_EQ(favorite.comment(), "旧版のお気に入り");
    EXPECT_EQ(favorite.options()->stringFor("JobName"), "テスト");
}

TEST(FavoriteEncoding, RomanSystemWritesCodePage850WithCodeZero) {
    // The file carries code 0 and so reads back as Shift JIS: a German umlaut does not
    // survive, which is how favorites of a Roman system have always behaved.
    OstrinTest::useProductStrings("de-DE");
    OstrinTest::TemporaryDirectory folder;
    FavoriteFile readBack;
    const std::string bytes = writeAndReadBack(folder, "Müller", {{"A", "1"}}, readBack);
    EXPECT_EQ(bytes, "2\n13\n0\nComment=M\x81ller\nA=1\t\t");
    EXPECT_NE(readBack.comment(), "Müller");
    EXPECT_EQ(readBack.options(), (PlistDictionary{{"A", "1"}}));
}

TEST(FavoriteEncoding, CharactersTheLocalEncodingLacksBecomeQuestionMarks) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    FavoriteFile readBack;
    const std::string bytes = writeAndReadBack(folder, "5 €", {{"JobName", "報告"}}, readBack);
    Diagnostics::setObserver({});
    EXPECT_EQ(bytes, "2\n13\n0\nComment=5 ?\nJobName=??\t\t");
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(lines.back().find("cannot hold"), std::string::npos);
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
