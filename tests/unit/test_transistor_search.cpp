// The catalogue search over small catalogue files written by each test, and
// over the catalogue that ships with the program.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <vector>

#include "transistor/core/SequentialReader.h"
#include "transistor/core/TransistorSuche.h"

using namespace transistor;

namespace {

const char* const Kopf = "\"Typ\",\"UceMax\",\"IcMax\",\"Ptot\",\"Geh\xE4use\",\"Klasse\"\r\n";
const char* const Ende = "\"*\",7,0.25,0,0,\"\"\r\n";

class Suche : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    pfad = dir.filePath(QStringLiteral("Transist.dat"));
    QLocale::setDefault(QLocale::c());
    t = CurrentTransistor{};
    t.typeName = QStringLiteral("SC 239d");
    t.packageCode = 1;
    t.polarity = QStringLiteral("npn");
    t.ubMagnitude = 12.0f;
  }
  void TearDown() override { QLocale::setDefault(QLocale::c()); }

  void schreibe(const QByteArray& inhalt) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
  }

  // A normal-transistor request.
  static Suchauftrag auftrag(float ic, float pmin, qint16 smd = 0, float ube = 0.72f) {
    Suchauftrag a;
    a.ic = ic;
    a.pmin = pmin;
    a.smdWahl = smd;
    a.ube = ube;
    return a;
  }
  // File errors are recorded and answered by `antwort` (Cancel without one).
  void suche(Suchauftrag& a) {
    TransistorSuche(a, t, [this](const DateiFehler& f) {
      fehler.push_back(f);
      return antwort ? antwort(f) : FehlerAntwort::Abbrechen;
    }, pfad);
  }

  QTemporaryDir dir;
  QString pfad;
  CurrentTransistor t;
  std::vector<DateiFehler> fehler;
  FehlerFrage antwort;
};

TEST_F(Suche, HardLimitsAreInclusiveAndEachOneRejects) {
  // Each of the first four rows fails exactly one limit; the fifth meets all
  // four exactly on the boundary.
  schreibe(QByteArray(Kopf) +
           "\"zuSchwach\",12,0.5,0.49,1,\"npn\"\r\n"
           "\"zuNiedrig\",11,0.5,0.5,1,\"npn\"\r\n"
           "\"zuWenigStrom\",12,0.49,0.5,1,\"npn\"\r\n"
           "\"pnpTyp\",12,0.5,0.5,1,\"pnp\"\r\n"
           "\"genau\",12,0.5,0.5,3,\"npn\"\r\n" + Ende);
  Suchauftrag a = auftrag(0.25f, 0.5f);
  suche(a);
  EXPECT_EQ(t.typeName, "genau");
  EXPECT_EQ(a.uceMax, 12);
  EXPECT_FLOAT_EQ(a.icMax, 0.5f);
  EXPECT_FLOAT_EQ(t.ptot, 0.5f);
  EXPECT_EQ(t.packageCode, 3);
  EXPECT_EQ(a.klasse, "npn");
  EXPECT_TRUE(fehler.empty());

  // pnp designs take the pnp row; the polarity word is the only difference.
  t.typeName = "SC 239d";
  t.polarity = "pnp";
  a = auftrag(0.25f, 0.5f);
  suche(a);
  EXPECT_EQ(t.typeName, "pnpTyp");
}

TEST_F(Suche, SmdAndDarlingtonRules) {
  schreibe(QByteArray(Kopf) +
           "\"kleinSMD\",45,1,1,10,\"npn-smd\"\r\n"
           "\"GROSS\",45,1,1,10,\"npn-SMD\"\r\n"
           "\"darlKlein\",45,1,1,2,\"npn-darlgt\"\r\n"
           "\"darl\",45,1,1,2,\"npn-Darlgt\"\r\n"
           "\"darlSMD\",45,1,1,10,\"npn-Darlgt-smd\"\r\n"
           "\"normal\",45,1,1,1,\"npn\"\r\n" + Ende);
  struct Fall { qint16 smd; float ube; const char* erwartet; };
  const Fall faelle[] = {
      {1, 0.72f, "kleinSMD"},   // mixed takes the first fit, SMD or not
      {2, 0.72f, "kleinSMD"},
      {0, 0.72f, "GROSS"},      // "SMD" in capitals is no SMD marker
      {0, 1.38f, "darl"},       // "darlgt" in small letters is no Darlington
      {2, 1.38f, "darlSMD"},
      {1, 1.38f, "darl"},
      {0, 0.85f, "GROSS"},      // between 0.8 and 0.9 V both kinds pass
      {2, 0.85f, "kleinSMD"},
      {0, 0.0f, "GROSS"},       // the heat-sink step: leaded, not Darlington
      {3, 0.72f, "1 W-Typ"},    // no other SMD choice accepts anything
  };
  for (const Fall& f : faelle) {
    t.typeName = "SC 239d";
    Suchauftrag a = auftrag(0.1f, 1.0f, f.smd, f.ube);
    suche(a);
    EXPECT_EQ(t.typeName, f.erwartet) << "SmdWahl " << f.smd << " Ube " << f.ube;
  }
}

TEST_F(Suche, ExcludedNameMakesARepeatedSearchStepOn) {
  schreibe(QByteArray(Kopf) +
           "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n"
           "\"BC337\",45,0.8,0.625,1,\"npn\"\r\n" + Ende);
  Suchauftrag a = auftrag(0.01f, 0.3f);
  suche(a);
  EXPECT_EQ(t.typeName, "BC547");
  a = auftrag(0.01f, 0.3f);
  suche(a);
  EXPECT_EQ(t.typeName, "BC337");
  a = auftrag(0.01f, 0.3f);
  suche(a);
  EXPECT_EQ(t.typeName, "BC547");
}

TEST_F(Suche, GenericTypeOnTheEndRecord) {
  schreibe(QByteArray(Kopf) + "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);

  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  Suchauftrag a = auftrag(0.2f, 0.05f);
  suche(a);
  EXPECT_EQ(t.typeName, "0,1 W-Typ");
  EXPECT_EQ(a.klasse, "npn");
  EXPECT_EQ(t.packageCode, 0);
  EXPECT_FLOAT_EQ(a.pmin, 0.1f);
  EXPECT_FLOAT_EQ(t.ptot, 0.1f);
  EXPECT_EQ(a.uceMax, 7);            // from the end record
  EXPECT_FLOAT_EQ(a.icMax, 0.25f);

  t.polarity = "pnp";
  t.ubMagnitude = 30.0f;
  a = auftrag(0.2f, 2.4f, 2, 1.38f);
  suche(a);
  EXPECT_EQ(t.typeName, "2 W-Typ");
  EXPECT_EQ(a.klasse, "pnp-Darlgt-smd");
  EXPECT_FLOAT_EQ(t.ptot, 2.4f);

  QLocale::setDefault(QLocale::c());
  t.polarity = "npn";
  a = auftrag(0.2f, 0.46f);
  suche(a);
  EXPECT_EQ(t.typeName, "0.5 W-Typ");
  a = auftrag(0.2f, 2.5f);
  suche(a);
  EXPECT_EQ(t.typeName, "3 W-Typ");
}

TEST_F(Suche, HeaderOnlyOrUnendedFilesLeaveTheLastValues) {
  schreibe(QByteArray(Kopf) + "\r\n  \r\n");
  Suchauftrag a = auftrag(0.01f, 0.1f);
  a.uceMax = 99;
  a.icMax = 9.0f;
  a.klasse = "vorher";
  t.ptot = 0.3f;
  suche(a);
  EXPECT_EQ(t.typeName, "SC 239d");
  EXPECT_EQ(t.packageCode, 1);
  EXPECT_EQ(a.uceMax, 99);
  EXPECT_FLOAT_EQ(a.icMax, 9.0f);
  EXPECT_EQ(a.klasse, "vorher");
  EXPECT_TRUE(fehler.empty());

  // No end record and nothing fits: the last record stays, as if taken.
  schreibe(QByteArray(Kopf) + "\"A\",45,0.1,0.5,1,\"pnp\"\r\n\"B\",5,0.1,0.5,4,\"npn\"");
  a = auftrag(0.01f, 0.1f);
  suche(a);
  EXPECT_EQ(t.typeName, "B");
  EXPECT_EQ(t.packageCode, 4);
  EXPECT_TRUE(fehler.empty());
}

TEST_F(Suche, FieldsAreReadByFieldsNotLines) {
  // Records spread over lines, blanks around fields, quoted comma, a tab,
  // LF-only and CR-only line ends, and an exponent.
  schreibe(QByteArray("header without quotes, and commas\n") +
           "  \"Typ, mit Komma\"  , 5 ,\t0.1 ,0.5,1,\"npn\"\r\n"
           "Ohne Quotes ,  45\n  1e0, 0.5\r 6 , npn-x  \r\n" + Ende);
  Suchauftrag a = auftrag(0.1f, 0.5f);
  suche(a);
  EXPECT_EQ(t.typeName, "Ohne Quotes");
  EXPECT_EQ(a.uceMax, 45);
  EXPECT_EQ(t.packageCode, 6);
  EXPECT_EQ(a.klasse, "npn-x");
  t.typeName = "x";
  t.ubMagnitude = 5.0f;
  a = auftrag(0.05f, 0.5f);
  suche(a);
  EXPECT_EQ(t.typeName, "Typ, mit Komma");
}

TEST_F(Suche, MissingFileRetryReopensCancelGivesGenericType) {
  // First answer: put the file in place and retry; the search then finds it.
  antwort = [this](const DateiFehler&) {
    schreibe(QByteArray(Kopf) + "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);
    return FehlerAntwort::Wiederholen;
  };
  Suchauftrag a = auftrag(0.01f, 0.3f);
  suche(a);
  ASSERT_EQ(fehler.size(), 1u);
  EXPECT_EQ(fehler[0].nummer, 53);
  EXPECT_EQ(fehler[0].titel, "Fehler 53");
  EXPECT_EQ(fehler[0].text, "Datei nicht gefunden\r\n" + pfad);
  EXPECT_EQ(t.typeName, "BC547");

  // Retry without a change asks again; Cancel then gives the generic type.
  QFile::remove(pfad);
  fehler.clear();
  antwort = [this](const DateiFehler&) {
    return fehler.size() < 2 ? FehlerAntwort::Wiederholen : FehlerAntwort::Abbrechen;
  };
  a = auftrag(0.01f, 0.3f, 0, 1.38f);
  suche(a);
  ASSERT_EQ(fehler.size(), 2u);
  EXPECT_EQ(t.typeName, "0.3 W-Typ");
  EXPECT_EQ(a.klasse, "npn-Darlgt");
  EXPECT_EQ(t.packageCode, 0);

  // Without anyone to ask, the search falls back at once.
  t.typeName = "x";
  TransistorSuche(a, t, {}, pfad);
  EXPECT_EQ(t.packageCode, 0);
}

TEST_F(Suche, DamagedFilesGiveErrorsAndNeverHang) {
  struct Fall { QByteArray inhalt; int nummer; };
  const std::vector<Fall> faelle = {
      {QByteArray(), 62},                                              // not even a header
      {QByteArray(Kopf) + "\"A\",45,0.1", 62},                          // cut short
      {QByteArray(Kopf) + "\"A\",40000,0.1,0.5,1,\"npn\"\r\n", 6},      // 16-bit overflow
      {QByteArray(Kopf) + "\"A\",45,1e39,0.5,1,\"npn\"\r\n", 6},        // single overflow
      {QByteArray(Kopf) + "\"A\",45,0.1,0.5,x1,\"npn\"\r\n", 13},       // text for a number
      {QByteArray(Kopf) + "\"A\",45,\"0,1\",0.5,1,\"npn\"\r\n", 13},    // decimal comma
      {QByteArray(Kopf) + "\"A,45,0.1,0.5,1,npn\r\n", 62},             // unclosed quote
  };
  for (const Fall& f : faelle) {
    schreibe(f.inhalt);
    fehler.clear();
    t.typeName = "SC 239d";
    Suchauftrag a = auftrag(0.01f, 0.3f);
    suche(a);
    ASSERT_EQ(fehler.size(), 1u) << f.inhalt.constData();
    EXPECT_EQ(fehler[0].nummer, f.nummer) << f.inhalt.constData();
    EXPECT_EQ(fehler[0].titel, "Fehler " + QString::number(f.nummer));
    EXPECT_EQ(t.typeName, "0.3 W-Typ");
  }
  EXPECT_EQ(seqio::errorDescription(62), "Einlesen hinter Dateiende");
  EXPECT_EQ(seqio::errorDescription(6), "Überlauf");
  EXPECT_EQ(seqio::errorDescription(13), "Typen unverträglich");

  // A directory in place of the file is refused, not read.
  QFile::remove(pfad);
  ASSERT_TRUE(QDir(dir.path()).mkdir("Transist.dat"));
  fehler.clear();
  Suchauftrag a = auftrag(0.01f, 0.3f);
  suche(a);
  ASSERT_EQ(fehler.size(), 1u);
  EXPECT_EQ(fehler[0].nummer, 75);
  QDir(dir.path()).rmdir("Transist.dat");

  // Nor is a pipe, which would block on opening.
  ASSERT_EQ(::mkfifo(QFile::encodeName(pfad).constData(), 0600), 0);
  fehler.clear();
  a = auftrag(0.01f, 0.3f);
  suche(a);
  ASSERT_EQ(fehler.size(), 1u);
  EXPECT_EQ(fehler[0].nummer, 75);
  QFile::remove(pfad);

  // One endless line without a comma: read through once, then cut short.
  schreibe(QByteArray(Kopf) + QByteArray(3 * 1024 * 1024, 'x'));
  fehler.clear();
  a = auftrag(0.01f, 0.3f);
  suche(a);
  ASSERT_EQ(fehler.size(), 1u);
  EXPECT_EQ(fehler[0].nummer, 62);
}

TEST_F(Suche, ReadErrorRetryRereadsTheRecord) {
  schreibe(QByteArray(Kopf) + "\"A\",45,0.1,0.5,x,\"npn\"\r\n" + Ende);
  antwort = [this](const DateiFehler& f) {
    EXPECT_EQ(f.nummer, 13);
    schreibe(QByteArray(Kopf) + "\"A\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);
    return FehlerAntwort::Wiederholen;
  };
  Suchauftrag a = auftrag(0.01f, 0.3f);
  t.typeName = "x";
  suche(a);
  EXPECT_EQ(fehler.size(), 1u);
  EXPECT_EQ(t.typeName, "A");
  EXPECT_EQ(t.packageCode, 1);
}

// The catalogue that ships beside the program.
class Katalog : public ::testing::Test {
 protected:
  // This source file's name is relative to the build directory when the
  // compiler is run from there, which is the parent of the test's folder.
  static QString pfad() {
    const QDir bau = QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).dir().filePath("..");
    return QFileInfo(bau.filePath(QStringLiteral(__FILE__))).dir().filePath(QStringLiteral("../../transistor/Transist.dat"));
  }
};

TEST_F(Katalog, IsWellFormedAndOrderedWeakToStrong) {
  QFile f(pfad());
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray inhalt = f.readAll();
  const QList<QByteArray> zeilen = inhalt.split('\n');
  ASSERT_GT(zeilen.size(), 40);
  ASSERT_TRUE(zeilen.last().isEmpty());
  for (qsizetype i = 0; i + 1 < zeilen.size(); ++i) ASSERT_TRUE(zeilen[i].endsWith('\r')) << i;

  seqio::SequentialReader r;
  ASSERT_EQ(r.open(pfad()), 0);
  QString kopf;
  ASSERT_EQ(r.readLine(kopf), 0);
  float vorher = 0;
  bool ende = false;
  int typen = 0;
  while (!r.atEnd()) {
    QString name, klasse;
    qint16 uce = 0, code = 0;
    float ic = 0, ptot = 0;
    ASSERT_EQ(r.readText(name), 0);
    ASSERT_EQ(r.readInt16(uce), 0);
    ASSERT_EQ(r.readSingle(ic), 0);
    ASSERT_EQ(r.readSingle(ptot), 0);
    ASSERT_EQ(r.readInt16(code), 0);
    ASSERT_EQ(r.readText(klasse), 0);
    if (name == "*") {
      ende = true;
      break;
    }
    ++typen;
    EXPECT_GE(ptot, vorher) << name.toStdString();
    vorher = ptot;
    EXPECT_TRUE(code >= 1 && code <= 12) << name.toStdString();
    EXPECT_TRUE(klasse.startsWith("npn") || klasse.startsWith("pnp")) << name.toStdString();
    EXPECT_GT(uce, 0);
    EXPECT_GT(ic, 0.0f);
  }
  EXPECT_TRUE(ende);
  EXPECT_GT(typen, 40);
}

TEST_F(Katalog, GivesRealTypesForBothPolaritiesKindsAndSmdChoices) {
  QLocale::setDefault(QLocale::c());
  for (const char* pol : {"npn", "pnp"}) {
    for (float ube : {0.72f, 1.38f}) {
      for (qint16 smd : {qint16(0), qint16(1), qint16(2)}) {
        // A small stage everything can serve, and one only SMD power types
        // (or leaded power types) can serve.
        for (float pmin : {0.2f, 1.2f}) {
          CurrentTransistor t;
          t.typeName = "SC 239d";
          t.polarity = pol;
          t.ubMagnitude = 24.0f;
          Suchauftrag a;
          a.ic = 0.05f;
          a.pmin = pmin;
          a.smdWahl = smd;
          a.ube = ube;
          TransistorSuche(a, t, {}, pfad());
          const std::string was = std::string(pol) + " Ube " + std::to_string(ube) + " SMD " +
                                  std::to_string(smd) + " Pmin " + std::to_string(pmin);
          EXPECT_GE(t.packageCode, 1) << was << " got " << t.typeName.toStdString();
          EXPECT_TRUE(a.klasse.startsWith(pol)) << was;
          EXPECT_EQ(a.klasse.contains("Darlgt"), ube > 1.0f) << was;
          if (smd != 1) {
            EXPECT_EQ(a.klasse.contains("smd"), smd == 2) << was;
          }
          EXPECT_GE(t.ptot, pmin) << was;
        }
      }
    }
  }
}

}  // namespace
