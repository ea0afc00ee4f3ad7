#pragma once
// The catalogue search: finds the first type in Transist.dat (beside the
// program) that meets a stage's demands, or invents a generic type.
//
// Catalogue: line 1 is a header and is thrown away; then records of six
// fields (type name, UceMax V, IcMax A, Ptot W, package code, class), ended
// by a record whose name is "*". The class text holds the polarity word
// "npn" or "pnp", "Darlgt" for a Darlington and "smd" for a surface-mount type.
// Weaker types stand before stronger ones, so the first fit is the smallest.
#include <QString>
#include <QtGlobal>
#include <functional>

#include "transistor/core/TransistorState.h"

namespace transistor {

enum class FehlerAntwort { Wiederholen, Abbrechen };

// A file error, as the user is asked about it: title "Fehler 53", text the
// error's description (for a missing file followed by CR LF and the path).
struct DateiFehler {
  int nummer = 0;
  QString titel;
  QString text;
};

// Asked on every file error; Wiederholen repeats the failed step (opening
// the file, reading the header or the record), Abbrechen ends the search
// with the generic type. An empty function counts as Abbrechen.
using FehlerFrage = std::function<FehlerAntwort(const DateiFehler&)>;

// What a stage demands, and what the search hands back besides the current
// transistor (name, package code and Ptot land in CurrentTransistor).
struct Suchauftrag {
  float ic = 0.0f;      // collector current of the stage, A
  float pmin = 0.0f;    // required power rating, W; raised to 0.1 by the generic type
  qint16 smdWahl = 0;   // 0 "kein SMD", 1 "gemischt", 2 "nur SMD"
  float ube = 0.0f;     // 0.72 for a normal transistor, 1.38 for a Darlington
  qint16 uceMax = 0;    // out
  float icMax = 0.0f;   // out
  QString klasse;       // out
};

// The catalogue file beside the program.
QString katalogPfad();

// Searches the catalogue. Reads the polarity word and the UB magnitude of t;
// the name t holds before the search is never taken (so a second search
// steps on to the next type). Outputs that no record reaches keep their
// values.
void TransistorSuche(Suchauftrag& auftrag, CurrentTransistor& t, const FehlerFrage& frage,
                     const QString& pfad = katalogPfad());

// Builds the generic type ("0,5 W-Typ", "2 W-Typ", package code 0) from the
// demands; UceMax and IcMax stay as they are.
void generischerTyp(Suchauftrag& auftrag, CurrentTransistor& t);

}  // namespace transistor
