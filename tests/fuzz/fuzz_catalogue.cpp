// The catalogue search over any bytes as Transist.dat and any demands. Every
// file error is asked about, a retried error comes back as long as the file
// stays as it is, and Cancel leaves the generic type; nothing hangs.
#include <QDir>
#include <QFile>
#include <QLocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <unistd.h>

#include "transistor/core/TransistorSuche.h"

using namespace transistor;

namespace {

// A folder of this process, in memory where the system offers it (a file
// is written for every input), removed when the process ends.
struct Folder {
  Folder() {
    const QDir base(QDir("/dev/shm").exists() ? QStringLiteral("/dev/shm") : QDir::tempPath());
    path = base.filePath("quarzel-fuzz-" + QString::number(::getpid()));
    QDir().mkpath(path);
  }
  ~Folder() { QDir(path).removeRecursively(); }
  QString path;
};

QString catalogue() {
  static const Folder folder;
  return folder.path + "/Transist.dat";
}

float demand(FuzzedDataProvider& in) {
  switch (in.ConsumeIntegralInRange(0, 3)) {
    case 0: return 0.0f;
    case 1: return in.ConsumeFloatingPointInRange(0.0f, 2.0f);
    case 2: return in.ConsumeFloatingPointInRange(0.0f, 1000.0f);
    default: return std::fabs(in.ConsumeFloatingPoint<float>());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider in(data, size);
  static const QLocale german(QLocale::German, QLocale::Germany);
  QLocale::setDefault(in.ConsumeBool() ? german : QLocale::c());
  Suchauftrag a;
  a.ic = demand(in);
  a.pmin = demand(in);
  a.smdWahl = qint16(in.ConsumeIntegralInRange(0, 2));
  a.ube = in.PickValueInArray({0.0f, 0.72f, 0.85f, 1.38f});
  CurrentTransistor t;
  t.typeName = in.PickValueInArray({"SC 239d", "BC547", "", "*"});
  t.polarity = in.ConsumeBool() ? "npn" : "pnp";
  t.ubMagnitude = demand(in);
  const int retries = in.ConsumeIntegralInRange(0, 3);
  {
    QFile f(catalogue());
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) std::abort();
    const std::string body = in.ConsumeRemainingBytesAsString();
    f.write(body.data(), qint64(body.size()));
  }

  const float pmin = a.pmin;
  int asked = 0;
  bool cancelled = false;
  TransistorSuche(a, t, [&](const DateiFehler& f) {
    ++asked;
    if (f.titel != "Fehler " + QString::number(f.nummer) || f.text.isEmpty()) std::abort();
    if (asked > retries) {
      cancelled = true;
      return FehlerAntwort::Abbrechen;
    }
    return FehlerAntwort::Wiederholen;
  }, catalogue());

  // The file does not change, so a repeated step fails again.
  if (asked != 0 && asked != retries + 1) std::abort();
  if (cancelled) {
    const float expected = pmin < 0.1f ? 0.1f : pmin;
    if (t.packageCode != 0 || t.ptot != expected || !t.typeName.endsWith(" W-Typ") ||
        t.typeName.contains("inf") || t.typeName.contains("nan"))
      std::abort();
  }
  return 0;
}
