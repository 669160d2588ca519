// Listing the favorites as the favorite pop-up and the favorites window do (the folder's
// favorite files, then each file read), with 1,000 favorites of a full job each, beside a
// plain listing of the same folder and a plain read of every file.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "DialogSession.h"
#include "core/FileUtil.h"
#include "core/PlistIO.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

constexpr int FavoriteCount = 1000;

// A private configuration folder holding the favorites, made once for the whole run.
class FavoritesFolder {
public:
    FavoritesFolder() {
        char pattern[] = "/tmp/ostrin-favorites-bench-XXXXXX";
        _home = ::mkdtemp(pattern);
        ::setenv("XDG_CONFIG_HOME", _home.c_str(), 1);
        OstrinBench::productBundlePath();
        const auto job = PlistIO::readFile(std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/InternalPrintOption.plist");
        for (int index = 0; index < FavoriteCount; ++index)
            AppPreference::sharedInstance().saveFavoriteOnFavoriteDirectory(
                "Job " + std::to_string(index), "Proofs of week " + std::to_string(index % 52), *job->dictionary());
        _folder = AppPreference::sharedInstance().favoriteFolderPathArray(false).front();
    }
    ~FavoritesFolder() { fs::remove_all(_home); }
    const std::string& folder() const { return _folder; }

private:
    std::string _home;
    std::string _folder;
};

const FavoritesFolder& favorites() {
    static FavoritesFolder folder;
    return folder;
}

void PlainDirectoryListing(benchmark::State& state) {
    const std::string& folder = favorites().folder();
    std::size_t count = 0;
    for (auto _ : state) {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().string());
        count = names.size();
        benchmark::DoNotOptimize(names);
    }
    state.counters["files"] = static_cast<double>(count);
}
BENCHMARK(PlainDirectoryListing)->Unit(benchmark::kMillisecond);

void PlainReadOfEveryFile(benchmark::State& state) {
    const std::string& folder = favorites().folder();
    for (auto _ : state)
        for (const auto& entry : fs::directory_iterator(folder))
            benchmark::DoNotOptimize(FileUtil::readAll(entry.path().string()));
}
BENCHMARK(PlainReadOfEveryFile)->Unit(benchmark::kMillisecond);

void ListTheFavorites(benchmark::State& state) {
    favorites();
    std::size_t count = 0;
    for (auto _ : state) {
        const auto paths = AppPreference::sharedInstance().arrayForFavoritePath();
        count = paths.size();
        benchmark::DoNotOptimize(paths);
    }
    state.counters["files"] = static_cast<double>(count);
}
BENCHMARK(ListTheFavorites)->Unit(benchmark::kMillisecond);

void ListAndReadEveryFavorite(benchmark::State& state) {
    favorites();
    std::size_t options = 0;
    for (auto _ : state) {
        options = 0;
        for (const std::string& path : AppPreference::sharedInstance().arrayForFavoritePath()) {
            FavoriteFile favorite(path);
            options += favorite.options() ? favorite.options()->size() : 0;
        }
    }
    state.counters["options"] = static_cast<double>(options);
}
BENCHMARK(ListAndReadEveryFavorite)->Unit(benchmark::kMillisecond);

}  // namespace
