// The catalogue search over small catalogue files written by each test, and
// over the catalogue that ships with the program.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QTemporaryDir>
#include <cstdlib>
#include <random>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "transistor/core/SequentialReader.h"
#include "transistor/core/TransistorSuche.h"

using namespace transistor;

namespace {

const QByteArray Kopf = "\"Typ\",\"UceMax\",\"IcMax\",\"Ptot\",\"Geh\xE4use\",\"Klasse\"\r\n";
const QByteArray Ende = "\"*\",7,0.25,0,0,\"\"\r\n";

class Suche : public ::testing::Test {
 protected:
  void schreibe(const QByteArray& inhalt) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(inhalt);
  }
  // One search for a stage. File errors are recorded and answered by
  // `antwort` (Cancel without one).
  Suchauftrag suche(float ic, float pmin, qint16 smd = 0, float ube = 0.72f, Suchauftrag a = {}) {
    a.ic = ic;
    a.pmin = pmin;
    a.smdWahl = smd;
    a.ube = ube;
    TransistorSuche(a, t, [this](const DateiFehler& f) {
      fehler.push_back(f);
      return antwort ? antwort(f) : FehlerAntwort::Abbrechen;
    }, pfad);
    return a;
  }
  // What a search left, "type package Ptot | class UceMax IcMax".
  std::string ergebnis(const Suchauftrag& a) const {
    return QString("%1 %2 %3 | %4 %5 %6").arg(t.typeName).arg(t.packageCode).arg(t.ptot).arg(a.klasse).arg(a.uceMax)
        .arg(a.icMax).toStdString();
  }

  QTemporaryDir dir;
  const QString pfad = dir.filePath(QStringLiteral("Transist.dat"));
  CurrentTransistor t{.typeName = "SC 239d", .packageCode = 1, .ubMagnitude = 12.0f};
  std::vector<DateiFehler> fehler;
  FehlerFrage antwort;
};

TEST_F(Suche, HardLimitsAreInclusiveAndEachOneRejects) {
  // Each of the first four rows fails exactly one limit (Ptot, UB, Ic,
  // polarity); the fifth meets all four exactly.
  schreibe(Kopf +
           "\"zuSchwach\",12,0.5,0.49,1,\"npn\"\r\n"
           "\"zuNiedrig\",11,0.5,0.5,1,\"npn\"\r\n"
           "\"zuWenigStrom\",12,0.49,0.5,1,\"npn\"\r\n"
           "\"pnpTyp\",12,0.5,0.5,1,\"pnp\"\r\n"
           "\"genau\",12,0.5,0.5,3,\"npn\"\r\n" + Ende);
  EXPECT_EQ(ergebnis(suche(0.25f, 0.5f)), "genau 3 0.5 | npn 12 0.5");
  EXPECT_TRUE(fehler.empty());

  t.polarity = "pnp";
  suche(0.25f, 0.5f);
  EXPECT_EQ(t.typeName, "pnpTyp");
}

TEST_F(Suche, SmdAndDarlingtonRules) {
  schreibe(Kopf +
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
    suche(0.1f, 1.0f, f.smd, f.ube);
    EXPECT_EQ(t.typeName, f.erwartet) << "SmdWahl " << f.smd << " Ube " << f.ube;
  }
}

TEST_F(Suche, ExcludedNameMakesARepeatedSearchStepOn) {
  schreibe(Kopf + "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n\"BC337\",45,0.8,0.625,1,\"npn\"\r\n" + Ende);
  for (const char* erwartet : {"BC547", "BC337", "BC547"}) {
    suche(0.01f, 0.3f);
    EXPECT_EQ(t.typeName, erwartet);
  }
}

TEST_F(Suche, GenericTypeOnTheEndRecord) {
  schreibe(Kopf + "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  // Pmin raised to 0.1 W; UceMax and IcMax from the end record.
  EXPECT_EQ(ergebnis(suche(0.2f, 0.05f)), "0,1 W-Typ 0 0.1 | npn 7 0.25");
  t.polarity = "pnp";
  t.ubMagnitude = 30.0f;
  EXPECT_EQ(ergebnis(suche(0.2f, 2.4f, 2, 1.38f)), "2 W-Typ 0 2.4 | pnp-Darlgt-smd 7 0.25");

  QLocale::setDefault(QLocale::c());
  t.polarity = "npn";
  suche(0.2f, 0.46f);
  EXPECT_EQ(t.typeName, "0.5 W-Typ");
  suche(0.2f, 2.5f);
  EXPECT_EQ(t.typeName, "3 W-Typ");
}

TEST_F(Suche, HeaderOnlyOrUnendedFilesLeaveTheLastValues) {
  schreibe(Kopf + "\r\n  \r\n");
  const Suchauftrag vorher{.uceMax = 99, .icMax = 9.0f, .klasse = "vorher"};
  EXPECT_EQ(ergebnis(suche(0.01f, 0.1f, 0, 0.72f, vorher)), "SC 239d 1 0 | vorher 99 9");

  // No end record and nothing fits: the last record stays, as if taken.
  schreibe(Kopf + "\"A\",45,0.1,0.5,1,\"pnp\"\r\n\"B\",5,0.1,0.5,4,\"npn\"");
  EXPECT_EQ(ergebnis(suche(0.01f, 0.1f)), "B 4 0.5 | npn 5 0.1");
  EXPECT_TRUE(fehler.empty());
}

TEST_F(Suche, FieldsAreReadByFieldsNotLines) {
  // Records spread over lines, blanks around fields, quoted comma, a tab,
  // LF-only and CR-only line ends, and an exponent.
  schreibe("header without quotes, and commas\n"
           "  \"Typ, mit Komma\"  , 5 ,\t0.1 ,0.5,1,\"npn\"\r\n"
           "Ohne Quotes ,  45\n  1e0, 0.5\r 6 , npn-x  \r\n" + Ende);
  EXPECT_EQ(ergebnis(suche(0.1f, 0.5f)), "Ohne Quotes 6 0.5 | npn-x 45 1");
  t.ubMagnitude = 5.0f;
  suche(0.05f, 0.5f);
  EXPECT_EQ(t.typeName, "Typ, mit Komma");
}

TEST_F(Suche, RetryReopensOrRereadsCancelGivesGenericType) {
  // First answer: put the file in place and retry; the search then finds it.
  antwort = [this](const DateiFehler&) {
    schreibe(Kopf + "\"BC547\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);
    return FehlerAntwort::Wiederholen;
  };
  suche(0.01f, 0.3f);
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
  Suchauftrag a = suche(0.01f, 0.3f, 0, 1.38f);
  EXPECT_EQ(fehler.size(), 2u);
  EXPECT_EQ(ergebnis(a), "0.3 W-Typ 0 0.3 | npn-Darlgt 0 0");  // nothing was read

  // Without anyone to ask, the search falls back at once.
  t.typeName = "x";
  t.packageCode = 1;
  TransistorSuche(a, t, {}, pfad);
  EXPECT_EQ(t.packageCode, 0);

  // After a read error, Retry reads the record again.
  schreibe(Kopf + "\"A\",45,0.1,0.5,x,\"npn\"\r\n" + Ende);
  fehler.clear();
  antwort = [this](const DateiFehler&) {
    schreibe(Kopf + "\"A\",45,0.1,0.5,1,\"npn\"\r\n" + Ende);
    return FehlerAntwort::Wiederholen;
  };
  suche(0.01f, 0.3f);
  ASSERT_EQ(fehler.size(), 1u);
  EXPECT_EQ(fehler[0].nummer, 13);
  EXPECT_EQ(t.typeName, "A");
}

TEST_F(Suche, DamagedFilesGiveOneErrorAndNeverHang) {
  // The number of the one error a search meets, which then gives the generic type.
  const auto fehlerNummer = [this](const QByteArray& inhalt) {
    if (!inhalt.isNull()) schreibe(inhalt);
    fehler.clear();
    t.typeName = "SC 239d";
    suche(0.01f, 0.3f);
    EXPECT_EQ(t.typeName, "0.3 W-Typ") << inhalt.left(80).constData();
    return fehler.size() == 1 ? fehler[0].nummer : -int(fehler.size());
  };
  EXPECT_EQ(fehlerNummer(""), 62);                                           // not even a header
  EXPECT_EQ(fehlerNummer(Kopf + "\"A\",45,0.1"), 62);                        // cut short
  EXPECT_EQ(fehlerNummer(Kopf + "\"A,45,0.1,0.5,1,npn\r\n"), 62);            // unclosed quote
  EXPECT_EQ(fehlerNummer(Kopf + QByteArray(3 * 1024 * 1024, 'x')), 62);      // one endless field
  EXPECT_EQ(fehlerNummer(Kopf + "\"A\",40000,0.1,0.5,1,\"npn\"\r\n"), 6);    // 16-bit overflow
  EXPECT_EQ(fehlerNummer(Kopf + "\"A\",45,1e39,0.5,1,\"npn\"\r\n"), 6);      // single overflow
  EXPECT_EQ(fehlerNummer(Kopf + "\"A\",45,0.1,0.5,x1,\"npn\"\r\n"), 13);     // text for a number
  EXPECT_EQ(fehlerNummer(Kopf + "\"A\",45,\"0,1\",0.5,1,\"npn\"\r\n"), 13);  // decimal comma
  EXPECT_EQ(fehler[0].titel, "Fehler 13");
  EXPECT_EQ(seqio::errorDescription(62), "Einlesen hinter Dateiende");
  EXPECT_EQ(seqio::errorDescription(6), "Überlauf");
  EXPECT_EQ(seqio::errorDescription(13), "Typen unverträglich");

  // A directory or a pipe (which would block on opening) is refused, not read.
  QFile::remove(pfad);
  ASSERT_TRUE(QDir(dir.path()).mkdir("Transist.dat"));
  EXPECT_EQ(fehlerNummer(QByteArray()), 75);
  QDir(dir.path()).rmdir("Transist.dat");
  ASSERT_EQ(::mkfifo(QFile::encodeName(pfad).constData(), 0600), 0);
  EXPECT_EQ(fehlerNummer(QByteArray()), 75);
  QFile::remove(pfad);
}

TEST_F(Suche, ARecordCutByTheEndOfAReadBlockReadsAsAWhole) {
  // The header fills the first block up to a shift, so that the block ends
  // in turn at every byte of the record: inside the quotes, between CR and
  // LF, in a number and in the blanks around a field. What follows the end
  // record fills the next block, so a field left pointing into the old one
  // would read other bytes.
  const QByteArray satz = "  \"Typ, A\" x ,  45 ,\t0.1e0 ,0.5,3,  npn \r\n";
  for (int verschiebung = 0; verschiebung <= satz.size(); ++verschiebung) {
    const QByteArray kopf = QByteArray(seqio::SequentialReader::BlockSize - verschiebung - 2, 'k') + "\r\n";
    schreibe(kopf + satz + Ende + QByteArray(seqio::SequentialReader::BlockSize, 'p'));
    t.typeName = "SC 239d";
    EXPECT_EQ(ergebnis(suche(0.05f, 0.5f)), "Typ, A 3 0.5 | npn 45 0.1") << verschiebung;
  }
  EXPECT_TRUE(fehler.empty());
}

TEST(Zahlenfeld, ShortDecimalsReadExactlyAsTheFullConversion) {
  // Numbers of up to 15 digits take a short way; it must give the very
  // double that the full conversion gives, for every position of the point.
  std::mt19937_64 zufall(7);
  for (int i = 0; i < 20000; ++i) {
    const int stellen = 1 + int(zufall() % 15);
    std::string text = std::to_string(zufall() % 1000000000000000ULL).substr(0, size_t(stellen));
    text.insert(zufall() % (text.size() + 1), ".");
    if (i % 3 == 0) text.insert(0, "-");
    double v = 1.0;
    ASSERT_EQ(seqio::parseNumber(text, v), seqio::Ok) << text;
    EXPECT_EQ(v, std::strtod(text.c_str(), nullptr)) << text;
  }
}

TEST_F(Suche, HostileCataloguesEndInTheBoxOrTheGenericType) {
  // Every question is answered Retry once, then Cancel; the file stays as it
  // is, so the same error comes twice and the generic type follows.
  antwort = [this](const DateiFehler&) {
    return fehler.size() < 2 ? FehlerAntwort::Wiederholen : FehlerAntwort::Abbrechen;
  };
  const auto fragen = [this](const QByteArray& inhalt) {
    schreibe(inhalt);
    fehler.clear();
    t.typeName = "SC 239d";
    QElapsedTimer uhr;
    uhr.start();
    suche(0.01f, 0.3f);
    EXPECT_LT(uhr.elapsed(), 20000) << inhalt.left(60).toHex().constData();
    EXPECT_EQ(t.typeName, "0.3 W-Typ") << inhalt.left(60).toHex().constData();
    EXPECT_EQ(t.packageCode, 0);
    std::vector<int> nummern;
    for (const DateiFehler& f : fehler) nummern.push_back(f.nummer);
    return nummern;
  };
  using N = std::vector<int>;

  // (Random bytes are the catalogue fuzz target's inputs.)
  // Ten megabytes on one line: as a type name, as a number, as empty fields.
  const QByteArray riesig(10 * 1024 * 1024, 'x');
  EXPECT_EQ(fragen(Kopf + riesig), (N{62, 62}));
  EXPECT_EQ(fragen(Kopf + "\"A\"," + riesig + ",0.1,0.5,1,\"npn\"\r\n" + Ende), (N{13, 13}));
  EXPECT_EQ(fragen(Kopf + QByteArray(1024 * 1024, ',') + "x"), (N{13, 13}));
  // Only LF or only CR as line ends, nothing fits: the end record's type.
  const QByteArray schwach = "\"BC547\",45,0.1,0.01,1,\"npn\"\r\n";
  EXPECT_EQ(fragen(QByteArray(Kopf + schwach + Ende).replace("\r\n", "\n")), N{});
  EXPECT_EQ(fragen(QByteArray(Kopf + schwach + Ende).replace("\r\n", "\r")), N{});
  // A truncated last record, an unbalanced quote, an empty file, a number
  // too large for its field, a directory in the catalogue's place.
  EXPECT_EQ(fragen(Kopf + schwach + "\"BD139\",80,1.5,12"), (N{62, 62}));
  EXPECT_EQ(fragen(Kopf + schwach + "\"BD139,80,1.5,12.5,5,npn\r\n" + Ende), (N{13, 13}));
  EXPECT_EQ(fragen(""), (N{62, 62}));
  EXPECT_EQ(fragen(Kopf + "\"A\",45,0.1,1e400,1,\"npn\"\r\n" + Ende), (N{6, 6}));
  QFile::remove(pfad);
  ASSERT_TRUE(QDir(dir.path()).mkdir("Transist.dat"));
  fehler.clear();
  suche(0.01f, 0.3f);
  EXPECT_EQ(t.typeName, "0.3 W-Typ");
  ASSERT_EQ(fehler.size(), 2u);
  EXPECT_EQ(fehler[1].nummer, 75);
  QDir(dir.path()).rmdir("Transist.dat");

  // A header line of ten megabytes is thrown away as a whole.
  schreibe(riesig + "\r\n" + QByteArray(schwach).replace("0.01", "0.5") + Ende);
  fehler.clear();
  suche(0.01f, 0.3f);
  EXPECT_EQ(t.typeName, "BC547");
  EXPECT_TRUE(fehler.empty());
}

TEST(Katalog, ReadsWithoutErrorAndHasEveryKindOrderedWeakToStrong) {
  // The catalogue beside the program. This source file's name is relative
  // to the build directory, which is the parent of the test's folder.
  const QDir bau = QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).dir().filePath("..");
  seqio::SequentialReader r;
  ASSERT_EQ(r.open(QFileInfo(bau.filePath(__FILE__)).dir().filePath("../../transistor/Transist.dat")), 0);
  QString kopf, name, klasse;
  ASSERT_EQ(r.readLine(kopf), 0);
  qint16 uce = 0, code = 0;
  float ic = 0, ptot = 0, vorher = 0;
  QMap<QString, float> staerkster;  // by class
  for (;;) {
    ASSERT_FALSE(r.atEnd()) << "no end record";
    ASSERT_FALSE(r.readText(name) || r.readInt16(uce) || r.readSingle(ic) || r.readSingle(ptot) ||
                 r.readInt16(code) || r.readText(klasse)) << "after " << staerkster.size() << " classes";
    if (name == "*") break;
    EXPECT_GE(ptot, vorher) << name.toStdString();
    EXPECT_TRUE(code >= 1 && code <= 12 && uce > 0 && ic > 0) << name.toStdString();
    vorher = staerkster[klasse] = ptot;
  }
  // Both polarities, normal and Darlington, leaded and SMD, up to tens of watts.
  EXPECT_EQ(staerkster.size(), 8);
  for (const char* k : {"npn", "npn-smd", "npn-Darlgt", "npn-Darlgt-smd", "pnp", "pnp-smd", "pnp-Darlgt", "pnp-Darlgt-smd"})
    EXPECT_GE(staerkster.value(k), 20.0f) << k;
}

}  // namespace
