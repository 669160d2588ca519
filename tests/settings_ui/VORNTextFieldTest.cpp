#include <gtest/gtest.h>

#include "SettingsTestSupport.h"
#include "settings_ui/VORNSecureTextField.h"

using namespace SettingsTest;

namespace {

// A crease position field: 0.5 to 10.25 mm, two decimals.
std::unique_ptr<VORNTextField> creaseField() {
    auto field = std::make_unique<VORNTextField>();
    field->setNum(true);
    field->setUnit(VORNTextField::UnitHundredths);
    field->setMin(0.5);
    field->setMax(10.25);
    field->setDigit(6);
    field->setKeyword("CreasePosition1");
    return field;
}

std::unique_ptr<VORNTextField> textField(std::uint32_t unit, std::uint32_t maxDigit) {
    auto field = std::make_unique<VORNTextField>();
    field->setUnit(unit);
    field->setDigit(maxDigit);
    field->setKeyword("PhysicalPageRange");
    return field;
}

// Types text character by character as the user does; answers whether all was accepted.
bool type(VORNTextField& field, const std::string& text) {
    for (char character : text) {
        if (!field.textView_shouldChangeTextInRange(field.stringValue().size(), 0, std::string(1, character)))
            return false;
        field.setEditedText(field.stringValue() + character);
    }
    return true;
}

void useProductCatalogues() {
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(productBundlePath()));
}

}  // namespace

// The separator of each language is the number widget's test; here the German comma
// counts towards the digits, and a secure field keeps the point whatever the language.
TEST(NumberInput, GermanCommaCountsTowardsTheDigitsAndSecureFieldsKeepThePoint) {
    Language german("de");
    auto field = creaseField();
    EXPECT_TRUE(type(*field, "10,25"));
    EXPECT_FALSE(field->shouldAcceptText("10,255"));
    VORNSecureTextField secure;
    secure.setNum(true);
    secure.setUnit(VORNTextField::UnitOneDecimal);
    secure.setMax(100);
    EXPECT_TRUE(secure.shouldAcceptText("1.5"));
    EXPECT_FALSE(secure.shouldAcceptText("1,5"));
}

TEST(NumberInput, MaximumRefusedAtOnceMinimumReportedAtTheEnd) {
    Language english("en");
    useProductCatalogues();
    AlertScript alerts({AlertFirstButtonReturn});
    auto field = creaseField();
    field->setStringValue("5.00");
    EXPECT_FALSE(field->textView_shouldChangeTextInRange(0, 4, "11"));
    EXPECT_TRUE(field->textView_shouldChangeTextInRange(0, 4, "0.2"));
    NotificationRecorder recorder({"CreasePosition1"});
    field->textDidBeginEditing();
    field->setEditedText("0.2");
    field->textDidEndEditing();
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.lastMessage(), "Enter a value from 0.50 to 10.25.");
    EXPECT_EQ(field->stringValue(), "5.00");
    EXPECT_EQ(recorder.names(), (std::vector<std::string>{"CreasePosition1"}));
}

TEST(NumberInput, GermanEndOfEditNormalisesAndReportsInGerman) {
    Language german("de");
    useProductCatalogues();
    AlertScript alerts({AlertFirstButtonReturn});
    auto control = buildControl("CreasePosition1");
    VORNTextField& field = *control->textField();
    NotificationRecorder recorder({"CreasePosition1"});
    field.textDidBeginEditing();
    EXPECT_TRUE(type(field, ""));
    field.setEditedText("");
    EXPECT_TRUE(type(field, "7,5"));
    field.textDidEndEditing();
    EXPECT_EQ(field.stringValue(), "7,50");
    EXPECT_EQ(control->getStringValue(), "7.50");
    EXPECT_EQ(recorder.names().size(), 1u);
    field.textDidEndEditing();
    EXPECT_EQ(recorder.names().size(), 1u);
    field.setEditedText("12");
    field.textDidEndEditing();
    EXPECT_EQ(alerts.lastMessage(), "Geben Sie einen Wert von 0.50 bis 10.25 ein.");
    EXPECT_EQ(field.stringValue(), "7,50");
}

TEST(NumberInput, SignFractionsAndLengthFollowTheField) {
    Language english("en");
    auto field = creaseField();
    EXPECT_FALSE(field->isNumFormat("-1"));
    field->setMin(-5);
    for (const char* accepted : {"-1", "-", ""}) EXPECT_TRUE(field->isNumFormat(accepted)) << accepted;
    for (const char* refused : {"1.234", "12345.6", "1.2.3"}) EXPECT_FALSE(field->isNumFormat(refused)) << refused;
    const std::tuple<std::uint32_t, const char*, bool> byUnit[] = {
        {VORNTextField::UnitInteger, "1.", false}, {VORNTextField::UnitInteger, "12", true},
        {VORNTextField::UnitOneDecimal, "1.25", false}, {VORNTextField::UnitThousandths, "1.125", true}};
    for (const auto& [unit, text, accepted] : byUnit) {
        field->setUnit(unit);
        EXPECT_EQ(field->isNumFormat(text), accepted) << unit << " " << text;
    }
}

TEST(NumberInput, ValuesAreWrittenInTheUsersFormAndKeptInRange) {
    Language german("de");
    auto field = creaseField();
    field->setDoubleValueforNumber(2.5);
    EXPECT_EQ(field->stringValue(), "2,500000");
    field->setUnit(VORNTextField::UnitOneDecimal);
    field->setDoubleValue(20);
    EXPECT_EQ(field->stringValue(), "20,0");
    EXPECT_DOUBLE_EQ(field->doubleValueInRange(), 10.25);
    EXPECT_EQ(field->intValueInRange(), 10);
    field->takeIntValueFrom(3.9);
    EXPECT_EQ(field->stringValue(), "3");
}

TEST(PageListInput, TypingRulesAndTheirLength) {
    auto field = textField(VORNTextField::UnitPageList, 8);
    EXPECT_TRUE(type(*field, "1-3,5"));
    for (const char* accepted : {"-3", "", "1-3,5,78"}) EXPECT_TRUE(field->shouldAcceptText(accepted)) << accepted;
    for (const char* refused : {"1--", "1-3,,", "0-3", "1a", "1-3,5,78,"})
        EXPECT_FALSE(field->shouldAcceptText(refused)) << refused;
    auto toner = textField(VORNTextField::UnitSpecialTonerPages, 4);
    EXPECT_TRUE(toner->shouldAcceptText("x--,"));
    EXPECT_FALSE(toner->shouldAcceptText("1-100"));
    VORNSecureTextField secure;
    secure.setUnit(VORNTextField::UnitPageList);
    secure.setDigit(2);
    EXPECT_TRUE(secure.shouldAcceptText("0--,,"));
}

TEST(TextInput, FinalChecksByFormatCode) {
    auto mail = textField(VORNTextField::UnitEmail, 20);
    EXPECT_TRUE(mail->isTextFormat("op@press.example"));
    EXPECT_FALSE(mail->isTextFormat("ops.team@press.example"));
    mail->setDigit(40);
    EXPECT_TRUE(mail->isTextFormat("ops.team@press.example"));
    EXPECT_FALSE(mail->isTextFormat("ops team@press.example"));
    EXPECT_FALSE(mail->isTextFormat("@press.example"));
    EXPECT_TRUE(mail->isTextFormat(""));
    EXPECT_TRUE(mail->shouldAcceptText("not yet an address"));
    auto plain = textField(VORNTextField::UnitText, 10);
    EXPECT_TRUE(plain->isTextFormat("Job_2024.1"));
    EXPECT_FALSE(plain->isTextFormat("Job 2024"));
    EXPECT_FALSE(plain->isTextFormat("Auftrag_Nr_12"));
    EXPECT_FALSE(plain->isTextFormat("ジョブ"));
    auto pages = textField(VORNTextField::UnitPageList, 20);
    EXPECT_FALSE(pages->isTextFormat("1-3,5"));
    EXPECT_TRUE(pages->isTextFormat(",-0123456789"));
    pages->setStringValue("1-3,5");
    EXPECT_FALSE(pages->validateTextField());
    EXPECT_EQ(pages->stringValue(), "1-3,5");
}

TEST(TextInput, ValidateNotificationChecksEnabledNumberFields) {
    Language english("en");
    useProductCatalogues();
    AlertScript alerts({AlertFirstButtonReturn, AlertFirstButtonReturn});
    NotificationRecorder recorder({"TEXTFIELD_VALIDATE_CANCEL"});
    auto field = creaseField();
    field->setStringValue("0.1");
    NotifyUnit::postNotificationName("VALIDATE");
    EXPECT_EQ(recorder.names().size(), 1u);
    EXPECT_EQ(alerts.asked().size(), 1u);
    field->setEnabled(false);
    NotifyUnit::postNotificationName("VALIDATE");
    field->setEnabled(true);
    field->setStringValue("2.00");
    NotifyUnit::postNotificationName("VALIDATE");
    EXPECT_EQ(recorder.names().size(), 1u);
    EXPECT_EQ(alerts.asked().size(), 1u);
    field.reset();
    NotifyUnit::postNotificationName("VALIDATE");
    EXPECT_EQ(alerts.asked().size(), 1u);
}
