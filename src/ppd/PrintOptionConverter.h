#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// Converts the print option dictionary between its internal form (the panes' keys,
/// lengths in millimetres, decimal ratios) and its canonical form (PPD main keywords and
/// option keywords, lengths in cep, scaled integers), and between the PPD form and the
/// input-manager form of the conversion table. Dictionaries are edited in place.
class PrintOptionConverter {
public:
    /// The one converter of the process, made on first use.
    static PrintOptionConverter& sharedInstance();

    /// Internal -> canonical, every step in order; convertCustomFlg 1 also converts
    /// custom sizes, print positions and passwords.
    static void convertToCanonicalPpdKeyword(PlistDictionary& printOption, int convertCustomFlg);
    /// Canonical -> internal, every step in order.
    static void convertToInternalPpdKeyword(PlistDictionary& printOption);

    /// Imposition keys, internal -> canonical.
    static void convertToCanonicalImpositionKeyword(PlistDictionary& printOption);
    /// Imposition keys, canonical -> internal; nothing for an empty dictionary.
    static void convertToInternalImpositionKeyword(PlistDictionary& printOption);
    /// Special-toner overlay objects: the six check keys -> the front and back bitmasks.
    static void convertToCanonicalSpecifiedObject(PlistDictionary& printOption);
    /// Special-toner overlay objects: the two bitmasks -> the six check keys.
    static void convertToInternalSpecifiedObject(PlistDictionary& printOption);
    /// "Magnification" percent -> tenths of a percent.
    static void convertToCanonicalMagnification(PlistDictionary& printOption);
    /// "Magnification" tenths of a percent -> percent with one decimal.
    static void convertToInternalMagnification(PlistDictionary& printOption);
    /// "GraphicsTreatmentEx" -> "GraphicsTreatmentBase" and "GraphicsTreatmentMode".
    static void convertToCanonicalGraphicsTreatmentEx(PlistDictionary& printOption);
    /// "GraphicsTreatmentBase" and "GraphicsTreatmentMode" -> "GraphicsTreatmentEx".
    static void convertToInternalGraphicsTreatmentEx(PlistDictionary& printOption);
    /// "Fitting" from the fitting key of the current imposition mode, else "False".
    static void saveScaleToFitValue(PlistDictionary& printOption);
    /// "Fitting" copied to the fitting key of the current imposition mode.
    static void setupScaleToFitValue(PlistDictionary& printOption);
    /// The imposition sheet size keys from "ChgPrintPaperSizeType"; nothing for "NoChange".
    static void convertImpositionSheetSize(PlistDictionary& printOption);
    /// The fixed settings of impositionMode ("Nup", "Booklet"); nothing for other modes.
    static void restoreDefaultSettigImposition(PlistDictionary& printOption, std::string_view impositionMode);

    /// Splits the joined key ("A_B") and its value into its part keys; nothing when the
    /// value is empty or the part counts differ.
    static void splitKeyword(PlistDictionary& printOption, std::string_view joinedMainKeyword);
    /// Joins the part keys into the joined key; nothing when a part is absent or empty.
    static void joinKeyword(PlistDictionary& printOption, std::string_view joinedMainKeyword);
    /// Exchanges the values of key1 and key2; nothing unless both exist.
    static void swapKeywordValue(PlistDictionary& printOption, std::string_view key1, std::string_view key2);
    /// Measures the crease positions from the other edge; nothing without "CreaseNum".
    static void swapCreaseKeyword(PlistDictionary& printOption);

    /// Millimetres -> cep, rounded to a whole number.
    static std::string convertMmToCep(std::string_view millimetres);
    /// Cep -> millimetres with two decimals.
    static std::string convertCepToMm(std::string_view cep);
    /// Print-position magnification percent -> tenths of a percent offset from 100.
    static std::string convertMagToVORN(std::string_view magnification);
    /// Tenths of a percent offset from 100 -> percent with one decimal.
    static std::string convertVORNToMag(std::string_view value);

    /// "Landscape" or "Portrait": how a finished sheet of the paper size lies.
    static std::string getImpositionFinishedSheetDirection(std::string_view paperSizeType);
    /// The size record ("typeNum", "height", "width" in cep) of the paper size, or nothing.
    static std::optional<PlistDictionary> getCepSizeFromPaperSizeType(std::string_view paperSizeType);
    /// True when "MediaTypeWeightValue" is absent (the name reads the other way round).
    static bool mediaTypeWeightValueExist(const PlistDictionary& printOption);

    /// Input-manager dictionary -> new PPD dictionary through the conversion table; empty
    /// when the table is missing.
    PlistDictionary toPpdKeywordFormat(const PlistDictionary& inputMgrOption) const;
    /// PPD dictionary -> new input-manager dictionary; empty when the table is missing.
    PlistDictionary toInputMgrFormat(const PlistDictionary& ppdOption) const;
    /// The input-manager value of one PPD choice, or nothing.
    std::optional<PlistValue> inputMgrTagValue(std::string_view mainKeyword, std::string_view optionKeywod) const;
    /// The conversion table named by the application preferences, read afresh; nothing
    /// when it is missing.
    std::optional<PlistDictionary> convertTable() const;

    PrintOptionConverter(const PrintOptionConverter&) = delete;
    PrintOptionConverter& operator=(const PrintOptionConverter&) = delete;

private:
    PrintOptionConverter() = default;
};

/// convertToInternalPpdKeyword on printOption; nullptr for nullptr.
PlistDictionary* ConvertToInternalPpdKeyword(PlistDictionary* printOption);
/// convertToCanonicalPpdKeyword with flag 1 on printOption; nullptr for nullptr.
PlistDictionary* ConvertToCanonicalPpdKeyword(PlistDictionary* printOption);
/// A new PPD dictionary from the input-manager one; nothing for nullptr.
std::optional<PlistDictionary> ToPpdKeywordFormat(const PlistDictionary* inputMgrOption);
/// A new input-manager dictionary from the PPD one; nothing for nullptr.
std::optional<PlistDictionary> ToInputMgrFormat(const PlistDictionary* ppdOption);

}  // namespace ComQuorvantVelmar_Plugin
