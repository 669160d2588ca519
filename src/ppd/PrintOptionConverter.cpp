#include "ppd/PrintOptionConverter.h"

#include "ppd/PrintOptionConverter_p.h"

namespace ComQuorvantVelmar_Plugin {

using namespace ConverterSteps;

PrintOptionConverter& PrintOptionConverter::sharedInstance() {
    static PrintOptionConverter converter;
    return converter;
}

// The order matters: lengths are in cep before the imposition sizes are computed from
// them, and the crease positions are measured from the other edge last, in cep.
void PrintOptionConverter::convertToCanonicalPpdKeyword(PlistDictionary& printOption, int convertCustomFlg) {
    const bool convertCustom = convertCustomFlg == 1;
    saveScaleToFitValue(printOption);
    convertToCanonicalGraphicsTreatmentEx(printOption);
    convertToCanonicalMagnification(printOption);
    convertToCanonicalSpecifiedObject(printOption);
    markSpotColorCorrectionProfileType(printOption);
    markRenderingProfileType(printOption);
    writeTwoColorPressNamesForPpd(printOption);
    markStackerTypes(printOption);
    splitPunch(printOption);
    splitOutputOrder(printOption);
    if (convertCustom) encodePasswords(printOption);
    splitPaperTypes(printOption);
    fillAuthJobUserId(printOption);
    splitSpecialTonerColors(printOption);
    if (convertCustom) customSizesToCep(printOption);
    finishingSizesToCep(printOption);
    if (convertCustom) printPositionsToCanonical(printOption);
    scaledNumbersToCanonical(printOption);
    convertToCanonicalImpositionKeyword(printOption);
    swapCreaseKeyword(printOption);
}

// Not the exact inverse of the other direction: stacker types and "AuthJobUserId" stay,
// "AuthJobUserIdType" is not restored, and unknown output orders read back differently.
void PrintOptionConverter::convertToInternalPpdKeyword(PlistDictionary& printOption) {
    swapCreaseKeyword(printOption);
    markRenderingProfile(printOption);
    readTwoColorPressNamesFromPpd(printOption);
    joinPunch(printOption);
    joinOutputOrder(printOption);
    decodePasswords(printOption);
    joinPaperTypes(printOption);
    paperSizeLengthsToMillimetres(printOption);
    joinSpecialTonerColors(printOption);
    finishingLengthsToMillimetres(printOption);
    scaledNumbersToInternal(printOption);
    convertToInternalImpositionKeyword(printOption);
    setupScaleToFitValue(printOption);
    convertToInternalGraphicsTreatmentEx(printOption);
    convertToInternalMagnification(printOption);
    convertToInternalSpecifiedObject(printOption);
}

PlistDictionary* ConvertToInternalPpdKeyword(PlistDictionary* printOption) {
    if (printOption) PrintOptionConverter::convertToInternalPpdKeyword(*printOption);
    return printOption;
}

PlistDictionary* ConvertToCanonicalPpdKeyword(PlistDictionary* printOption) {
    if (printOption) PrintOptionConverter::convertToCanonicalPpdKeyword(*printOption, 1);
    return printOption;
}

std::optional<PlistDictionary> ToPpdKeywordFormat(const PlistDictionary* inputMgrOption) {
    if (!inputMgrOption) return std::nullopt;
    return PrintOptionConverter::sharedInstance().toPpdKeywordFormat(*inputMgrOption);
}

std::optional<PlistDictionary> ToInputMgrFormat(const PlistDictionary* ppdOption) {
    if (!ppdOption) return std::nullopt;
    return PrintOptionConverter::sharedInstance().toInputMgrFormat(*ppdOption);
}

}  // namespace ComQuorvantVelmar_Plugin
