#include <gtest/gtest.h>

#include "core/FormatterAttachment.h"
#include "core/TextScrambling.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PlainButton.h"
#include "panes/PlainRadioMatrix.h"
#include "panes/PlainSecureTextField.h"
#include "panes/PlainSlider.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

PlistArray keywords(std::initializer_list<const char*> names) {
    PlistArray list;
    for (const char* name : names) list.emplace_back(name);
    return list;
}

std::optional<PlistValue> read(const PlainControl& control) { return PanePlugInMgr::_getValueFromControl(&control); }

void write(PlainControl& control, const PlistValue& value) { PanePlugInMgr::_setValueToControl(&control, &value); }

std::unique_ptr<PlainPopUpButton> trayMenu() {
    auto popup = std::make_unique<PlainPopUpButton>();
    popup->addItem({"Automatic", PlistDictionary{{"optionKeyword", "Auto"}}});
    popup->addSeparator();
    popup->addItem({"Tray 1", PlistDictionary{{"optionKeyword", "Tray1"}}});
    popup->addItem({"Tray 1 again", PlistDictionary{{"optionKeyword", "Tray1"}}});
    popup->addItem({"Numbered", PlistDictionary{{"optionKeyword", "2"}}});
    return popup;
}

}  // namespace

TEST(PlainControlValues, PopUpAnswersAndSelectsTheItemsOptionKeyword) {
    auto menu = trayMenu();
    PlainPopUpButton& popup = *menu;
    EXPECT_EQ(read(popup), PlistValue("Auto"));
    write(popup, PlistValue("Tray1"));
    EXPECT_EQ(popup.indexOfSelectedItem(), 2);
    write(popup, PlistValue("Tray9"));
    EXPECT_EQ(popup.indexOfSelectedItem(), 2);
    write(popup, PlistValue(2));
    EXPECT_EQ(read(popup), PlistValue("2"));
    popup.selectItemAtIndex(-1);
    EXPECT_EQ(read(popup), std::nullopt);
}

TEST(PlainControlValues, SliderRunsFromTheLastKeywordToTheFirst) {
    PlainSlider slider;
    slider.setRange(0, 2);
    slider.setRepresentedObject({{"optionKeywords", keywords({"A", "B", "C"})}});
    EXPECT_EQ(read(slider), PlistValue("C"));
    write(slider, PlistValue("A"));
    EXPECT_EQ(slider.intValue(), 2);
    EXPECT_EQ(read(slider), PlistValue("A"));
    write(slider, PlistValue("Z"));
    EXPECT_EQ(slider.intValue(), 2);
    PlainSlider bare;
    bare.setRange(0, 4);
    EXPECT_EQ(read(bare), std::nullopt);
    write(bare, PlistValue("A"));
    EXPECT_EQ(bare.intValue(), 0);
}

TEST(PlainControlValues, CheckBoxWithKeywordsIsOnForAnyButTheFirst) {
    PlainButton box;
    box.setRepresentedObject({{"optionKeywords", keywords({"Off", "On"})}});
    EXPECT_EQ(read(box), PlistValue("Off"));
    write(box, PlistValue("On"));
    EXPECT_EQ(box.state(), PlainButton::StateOn);
    EXPECT_EQ(read(box), PlistValue("On"));
    write(box, PlistValue("Other"));
    EXPECT_EQ(box.state(), PlainButton::StateOff);
    write(box, PlistValue("On"));
    write(box, PlistValue("Off"));
    EXPECT_EQ(box.state(), PlainButton::StateOff);

    PlainButton single;
    single.setRepresentedObject({{"optionKeywords", keywords({"On"})}});
    single.setState(PlainButton::StateOn);
    EXPECT_EQ(read(single), std::nullopt);
    write(single, PlistValue("On"));
    EXPECT_EQ(single.state(), PlainButton::StateOff);
}

TEST(PlainControlValues, CheckBoxWithoutKeywordsTakesOnlyTrueSpelledExactly) {
    PlainButton box;
    EXPECT_EQ(read(box), PlistValue(false));
    write(box, PlistValue("True"));
    EXPECT_EQ(read(box), PlistValue(true));
    write(box, PlistValue("true"));
    EXPECT_EQ(box.state(), PlainButton::StateOff);
    write(box, PlistValue(true));
    EXPECT_EQ(box.state(), PlainButton::StateOn);
    write(box, PlistValue(0));
    EXPECT_EQ(box.state(), PlainButton::StateOff);
    write(box, PlistValue(7));
    EXPECT_EQ(box.state(), PlainButton::StateOn);
}

TEST(PlainControlValues, SecureFieldHoldsItsTextScrambledWithTheFixedKey) {
    PlainSecureTextField field;
    field.setStringValue("s3cret");
    const auto value = read(field);
    ASSERT_TRUE(value && value->string());
    EXPECT_EQ(value->string()->size(), 2 + 2 * 6u);
    EXPECT_EQ(decryptString(PanePlugInMgr::secureTextFieldKey, *value->string()), "s3cret");
    PlainSecureTextField other;
    write(other, *value);
    EXPECT_EQ(other.stringValue(), "s3cret");
    EXPECT_EQ(std::string(PanePlugInMgr::secureTextFieldKey).size(), 20u);
}

TEST(PlainControlValues, TextFieldUnescapesThroughItsEscapingFormatter) {
    PlainTextField plain;
    write(plain, PlistValue("a\\(b\\)"));
    EXPECT_EQ(plain.stringValue(), "a\\(b\\)");
    write(plain, PlistValue(12.5));
    EXPECT_EQ(read(plain), PlistValue("12.5"));
    write(plain, PlistValue(true));
    EXPECT_EQ(plain.stringValue(), "12.5");

    PlainTextField escaped;
    escaped.setFormatter(attachMaxBytesFormatterWithEscape(64));
    write(escaped, PlistValue("Job \\(draft\\)"));
    EXPECT_EQ(escaped.stringValue(), "Job (draft)");
    EXPECT_EQ(read(escaped), PlistValue("Job \\(draft\\)"));

    PlainTextField limited;
    limited.setFormatter(attachMaxLengthFormatter(64));
    write(limited, PlistValue("Job \\(draft\\)"));
    EXPECT_EQ(limited.stringValue(), "Job \\(draft\\)");
}

TEST(PlainControlValues, RadioMatrixSelectsEachRowsMatchSoTheLastRowWins) {
    PlainRadioMatrix matrix;
    EXPECT_EQ(read(matrix), std::nullopt);
    matrix.addRow({{"Left", PlistValue("L")}, {"Right", PlistValue("R")}});
    matrix.addRow({{"Other", PlistValue("X")}, {"Right again", PlistValue("R")}});
    write(matrix, PlistValue("L"));
    EXPECT_EQ(matrix.selectedCell()->title, "Left");
    write(matrix, PlistValue("R"));
    EXPECT_EQ(matrix.selectedCell()->title, "Right again");
    EXPECT_EQ(read(matrix), PlistValue("R"));
    write(matrix, PlistValue("Z"));
    EXPECT_EQ(matrix.selectedCell()->title, "Right again");
}

TEST(PlainControlValues, NothingIsReadOrWrittenWithoutControlOrValue) {
    EXPECT_EQ(PanePlugInMgr::_getValueFromControl(nullptr), std::nullopt);
    PanePlugInMgr::_setValueToControl(nullptr, nullptr);
    auto menu = trayMenu();
    PlainPopUpButton& popup = *menu;
    PanePlugInMgr::_setValueToControl(&popup, nullptr);
    const PlistValue null;
    PanePlugInMgr::_setValueToControl(&popup, &null);
    EXPECT_EQ(popup.indexOfSelectedItem(), 0);
}
