// Both whole-dictionary conversions on the panes' full print option dictionary (about
// 270 keys), as the panel runs them on every restore and save. The copy of the
// dictionary that each iteration converts is measured alone as the reference.

#include <benchmark/benchmark.h>

#include "core/PlistIO.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const PlistDictionary& internalOptions() {
    static const PlistDictionary options = [] {
        auto value = PlistIO::readFile(std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/InternalPrintOption.plist");
        return value && value->dictionary() ? *value->dictionary() : PlistDictionary();
    }();
    return options;
}

const PlistDictionary& canonicalOptions() {
    static const PlistDictionary options = [] {
        PlistDictionary converted = internalOptions();
        PrintOptionConverter::convertToCanonicalPpdKeyword(converted, 1);
        return converted;
    }();
    return options;
}

void CopyInternalDictionary(benchmark::State& state) {
    for (auto _ : state) {
        PlistDictionary printOption = internalOptions();
        benchmark::DoNotOptimize(printOption);
    }
    state.counters["keys"] = static_cast<double>(internalOptions().size());
}

void ConvertToCanonical(benchmark::State& state) {
    for (auto _ : state) {
        PlistDictionary printOption = internalOptions();
        PrintOptionConverter::convertToCanonicalPpdKeyword(printOption, 1);
        benchmark::DoNotOptimize(printOption);
    }
    state.counters["keys"] = static_cast<double>(internalOptions().size());
}

void CopyCanonicalDictionary(benchmark::State& state) {
    for (auto _ : state) {
        PlistDictionary printOption = canonicalOptions();
        benchmark::DoNotOptimize(printOption);
    }
    state.counters["keys"] = static_cast<double>(canonicalOptions().size());
}

void ConvertToInternal(benchmark::State& state) {
    for (auto _ : state) {
        PlistDictionary printOption = canonicalOptions();
        PrintOptionConverter::convertToInternalPpdKeyword(printOption);
        benchmark::DoNotOptimize(printOption);
    }
    state.counters["keys"] = static_cast<double>(canonicalOptions().size());
}

}  // namespace

BENCHMARK(CopyInternalDictionary);
BENCHMARK(ConvertToCanonical);
BENCHMARK(CopyCanonicalDictionary);
BENCHMARK(ConvertToInternal);
