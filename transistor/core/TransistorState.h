#pragma once
// The program-wide state of the transistor tools: the current transistor that
// a design or a catalogue search leaves behind, and the values of the
// amplifier design that the heat-sink calculator starts from.
#include <QString>
#include <QtGlobal>

namespace transistor {

struct CurrentTransistor {
  QString typeName;              // e.g. "SC 239d"; a generic type reads "0,5 W-Typ"
  qint16 packageCode = 0;        // 1..12; 0 for a generic type or before any design
  float ptot = 0.0f;             // power rating in W
  QString polarity = QStringLiteral("npn");  // "npn" or "pnp"
  float ubMagnitude = 0.0f;      // supply voltage without its sign, V
};

// Values of the amplifier design that the heat-sink calculator opens with.
struct DesignState {
  float ic = 0.0f;               // collector current of the stage, A
  float tj = 0.0f;               // junction temperature, °C; 0 until first used
  float sheetThickness = 2.0f;   // mm
};

CurrentTransistor& current();
DesignState& design();

// Package names as the pin sketch prints them; any other code gives " ?".
QString packageName(int code);

}  // namespace transistor
