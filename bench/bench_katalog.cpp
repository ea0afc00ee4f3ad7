// The catalogue search over generated catalogues of 1,000, 100,000 and
// 1,000,000 records: the worst case, in which no type fits and every record
// is read up to the end record, and the case in which the first record fits.
// Reports bytes of catalogue per second.
//   bench_katalog [--smoke] [Google Benchmark options]
// --smoke runs each case once on the smallest catalogue.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <vector>

#include "bench/Smoke.h"
#include "transistor/core/TransistorSuche.h"

using namespace transistor;

namespace {

QTemporaryDir& ordner() {
  static QTemporaryDir d;
  return d;
}

// A catalogue of n records of leaded npn types, weak to strong, in the
// shape of the shipped one, ended by the end record. Written once per size.
QString katalog(int n) {
  static std::map<int, QString> fertig;
  if (auto it = fertig.find(n); it != fertig.end()) return it->second;
  const QString pfad = ordner().filePath(QStringLiteral("Transist-%1.dat").arg(n));
  QFile f(pfad);
  if (!f.open(QIODevice::WriteOnly)) return fertig[n] = QString();
  QByteArray inhalt = "\"Typ\",\"UceMax\",\"IcMax\",\"Ptot\",\"Geh\xE4use\",\"Klasse\"\r\n";
  inhalt.reserve(qsizetype(n) * 40);
  char zeile[128];
  for (int i = 0; i < n; ++i) {
    const int len = std::snprintf(zeile, sizeof zeile, "\"BC%07d\",%d,%.3f,%.3f,%d,\"%s\"\r\n", i, 20 + i % 80,
                                  0.1 + (i % 50) * 0.02, 0.3 + double(i) / n * 100.0, 1 + i % 12,
                                  i % 4 == 3 ? "npn-smd" : "npn");
    inhalt.append(zeile, len);
  }
  inhalt += "\"*\",0,0,0,0,\"\"\r\n";
  f.write(inhalt);
  return fertig[n] = pfad;
}

void suche(benchmark::State& state, float pmin) {
  const QString pfad = katalog(int(state.range(0)));
  if (pfad.isEmpty()) {
    state.SkipWithError("catalogue not written");
    return;
  }
  const qint64 bytes = QFileInfo(pfad).size();
  const auto keinFehler = [](const DateiFehler&) { return FehlerAntwort::Abbrechen; };
  bool fehler = false;
  for (auto _ : state) {
    CurrentTransistor t{.typeName = "SC 239d", .packageCode = 1, .ubMagnitude = 12.0f};
    Suchauftrag a{.ic = 0.01f, .pmin = pmin, .smdWahl = 0, .ube = 0.72f};
    TransistorSuche(a, t, [&](const DateiFehler& f) { fehler = true; return keinFehler(f); }, pfad);
    benchmark::DoNotOptimize(t.typeName.data());
  }
  if (fehler) state.SkipWithError("file error during the search");
  if (pmin >= 1000.0f) state.SetBytesProcessed(state.iterations() * bytes);
  state.counters["records"] = double(state.range(0));
}

// Ptot reaches 100.3 W at most: 1000 W fits no record.
void SchlimmsterFall(benchmark::State& state) { suche(state, 1000.0f); }
void ErsterSatz(benchmark::State& state) { suche(state, 0.1f); }

}  // namespace

int main(int argc, char** argv) {
  bench::Arguments args = bench::arguments(argc, argv);
  const bool smoke = args.smoke;
  int n = args.count();
  const std::vector<int64_t> groessen = smoke ? std::vector<int64_t>{1000} : std::vector<int64_t>{1000, 100000, 1000000};
  for (auto* b : {benchmark::RegisterBenchmark("KatalogSuche/SchlimmsterFall", SchlimmsterFall),
                  benchmark::RegisterBenchmark("KatalogSuche/ErsterSatz", ErsterSatz)}) {
    for (int64_t g : groessen) b->Arg(g);
    b->Unit(benchmark::kMillisecond);
    if (smoke) b->Iterations(1);
  }
  benchmark::Initialize(&n, args.rest.data());
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
