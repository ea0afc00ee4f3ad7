#pragma once
// The crossover networks as ladder networks, one per loudspeaker way, for
// the frequency-response plot: each way runs from the amplifier through its
// parts to the loudspeaker, taken as its resistive impedance.
#include <QString>
#include <array>
#include <vector>

#include "crossover/core/Crossover.h"
#include "shell/core/Bode.h"
#include "shell/core/Ladder.h"

namespace lpbox {

struct NetworkValues {
  double rTT = 0, rMT = 0, rHT = 0;  // loudspeaker impedances, ohm
  std::array<double, 14> part{};     // part[n]: the component of TextN in farad or henry
};

struct Way {
  QString name;  // "Tiefton", "Mittelton", "Hochton"
  std::vector<ladder::Part> parts;
  double load;
};

// The ways of a network, woofer first. A way with a component of 0 or less
// is left out (the network is not complete).
std::vector<Way> ways(Mode mode, const NetworkValues& v);

// Voltage at each way's loudspeaker over the input voltage at f, and their sum.
std::vector<ladder::Complex> wayTransfers(const std::vector<Way>& ways, double f);
ladder::Complex sumTransfer(const std::vector<Way>& ways, double f);

// The level at each loudspeaker and of their sum relative to the input,
// 20 Hz to 20 kHz on -40..+10 dB, with the crossover frequency marked (the
// three-way box: fo and fu). Empty when the network has no complete way.
bode::Plot responsePlot(Mode mode, const NetworkValues& v, double fo, double fu = 0);

}  // namespace lpbox
