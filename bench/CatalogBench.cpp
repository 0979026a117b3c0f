#include <clocale>
#include <libintl.h>
#include <string>
#include <vector>

#include <QTranslator>
#include <benchmark/benchmark.h>

#include "bench/BenchSupport.h"
#include "i18n/Catalog.h"
#include "i18n/LocalizeControlTexts.h"

extern "C" int _nl_msg_cat_cntr;  // tells gettext that the language has changed

namespace {

struct CatalogText {
  int category;
  int number;
};
constexpr CatalogText kTexts[] = {
#include "CatalogTexts.inc"
};

constexpr const char* kDomain = "catalog";
constexpr const char* kContext = "Catalog";

/// A system language with its name on each side.
struct Language {
  const char* locale;
  const char* translation;
};
constexpr Language kEnglish{"en_US.UTF-8", "en"};
constexpr Language kGerman{"de_DE.UTF-8", "de"};
constexpr Language kChinese{"zh_CN.UTF-8", "zh_CN"};

int LoadFrom(const std::string& folder) { return LoadCatalog(std::span(&folder, 1)); }

/// Sets the system language during its lifetime.
class LanguageScope {
 public:
  explicit LanguageScope(const Language& language) {
    qputenv("LC_ALL", language.locale);
    loaded_ = LoadFrom(BENCH_CATALOG_DIR) == 0;
    qputenv("LANGUAGE", language.translation);
    ++_nl_msg_cat_cntr;
    std::setlocale(LC_MESSAGES, "C.UTF-8");  // gettext does not look up texts in plain "C"
    bindtextdomain(kDomain, BENCH_TRANSLATIONS_DIR);
    bind_textdomain_codeset(kDomain, "UTF-8");
    const auto file = QStringLiteral(BENCH_TRANSLATIONS_DIR "/%1.qm").arg(language.translation);
    loaded_ = translator_.load(file) && loaded_;
  }
  ~LanguageScope() {
    qputenv("LC_ALL", "en_US.UTF-8");
    qunsetenv("LANGUAGE");
    std::setlocale(LC_MESSAGES, "C");
    LoadCatalog();
  }
  LanguageScope(const LanguageScope&) = delete;
  LanguageScope& operator=(const LanguageScope&) = delete;

  bool Loaded() const { return loaded_; }
  const QTranslator& Translator() const { return translator_; }

 private:
  bool loaded_ = false;
  QTranslator translator_;
};

bool HasInserts(const std::string& text) { return text.find('%') != std::string::npos; }

// All sides take turns on all texts, so that disturbances affect them equally.
void LookUpTexts(benchmark::State& state, const Language& language) {
  const LanguageScope scope(language);
  const QTranslator& translator = scope.Translator();
  std::vector<std::string> keys;
  for (const CatalogText& text : kTexts) {
    keys.push_back(std::to_string(text.category) + '.' + std::to_string(text.number));
  }
  char buffer[1024];
  const auto catalogText = [&buffer](const CatalogText& text) {
    GetCatalogText(text.category, text.number, sizeof buffer, buffer, "1", 2);
  };
  bool equal = scope.Loaded();
  for (std::size_t i = 0; i < std::size(kTexts) && equal; ++i) {
    const std::string translated = dgettext(kDomain, keys[i].c_str());
    catalogText(kTexts[i]);
    equal = translated != keys[i] && (translated == buffer || HasInserts(translated)) &&
            translator.translate(kContext, keys[i].c_str()).toStdString() == translated;
  }
  if (!equal) {
    state.SkipWithError("the sides do not give the same texts");
    return;
  }

  std::vector<double> catalog;
  std::vector<double> batched;
  std::vector<double> catalogString;
  std::vector<double> gettext;
  std::vector<double> qt;
  const auto time = [](std::vector<double>& times, auto lookUpAll) {
    const auto start = Clock::now();
    lookUpAll();
    times.push_back(SecondsSince(start) / std::size(kTexts));
  };
  for ([[maybe_unused]] auto iteration : state) {
    time(catalog, [&] {
      for (const CatalogText& text : kTexts) {
        catalogText(text);
        benchmark::DoNotOptimize(buffer);
      }
    });
    state.SetIterationTime(catalog.back() * std::size(kTexts));
    time(batched, [&] {
      const CatalogBatch batch;
      for (const CatalogText& text : kTexts) {
        catalogText(text);
        benchmark::DoNotOptimize(buffer);
      }
    });
    time(qt, [&] {
      for (const std::string& key : keys) {
        benchmark::DoNotOptimize(translator.translate(kContext, key.c_str()));
      }
    });
    time(gettext, [&] {
      for (const std::string& key : keys) {
        benchmark::DoNotOptimize(dgettext(kDomain, key.c_str()));
      }
    });
    time(catalogString, [&] {
      for (const CatalogText& text : kTexts) {
        benchmark::DoNotOptimize(CatalogString(text.category, text.number, "1", 2));
      }
    });
  }
  state.counters["texts"] = static_cast<double>(std::size(kTexts));
  state.counters["GetCatalogText_ns"] = Median(catalog) * 1e9;
  state.counters["batch_ns"] = Median(batched) * 1e9;
  state.counters["CatalogString_ns"] = Median(catalogString) * 1e9;
  state.counters["dgettext_ns"] = Median(gettext) * 1e9;
  state.counters["QTranslator_ns"] = Median(qt) * 1e9;
  state.counters["ratio_to_Qt"] = Median(catalog) / Median(qt);
  state.counters["batch_to_Qt"] = Median(batched) / Median(qt);
}

// The module of all languages, and by turns one of a single language.
void LoadModules(benchmark::State& state) {
  std::vector<double> all;
  std::vector<double> one;
  const auto time = [](std::vector<double>& times, const char* folder) {
    const auto start = Clock::now();
    const bool loaded = LoadFrom(folder) == 0;
    times.push_back(SecondsSince(start));
    return loaded;
  };
  for ([[maybe_unused]] auto iteration : state) {
    if (!time(one, BENCH_ONE_LANGUAGE_DIR) || !time(all, BENCH_CATALOG_DIR)) {
      state.SkipWithError("a module cannot be loaded");
    }
    state.SetIterationTime(all.back());
  }
  state.counters["one_language_us"] = Median(one) * 1e6;
  state.counters["all_languages_us"] = Median(all) * 1e6;
  LoadCatalog();
}

void CatalogTimes(benchmark::internal::Benchmark* bench) {
  bench->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(500);
}

}  // namespace

BENCHMARK_CAPTURE(LookUpTexts, English, kEnglish)->Apply(CatalogTimes);
BENCHMARK_CAPTURE(LookUpTexts, Chinese, kChinese)->Apply(CatalogTimes);
BENCHMARK_CAPTURE(LookUpTexts, German, kGerman)->Apply(CatalogTimes);
BENCHMARK(LoadModules)->Apply(CatalogTimes);
