#pragma once
// The option --smoke of the benchmark programs: every benchmark runs once on
// its smallest size, so that ctest keeps them building and running. The
// other arguments go on to Google Benchmark.
#include <cstring>
#include <vector>

namespace bench {

struct Arguments {
  bool smoke = false;
  std::vector<char*> rest;  // for benchmark::Initialize
  int count() const { return int(rest.size()); }
};

inline Arguments arguments(int argc, char** argv) {
  Arguments a;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--smoke") == 0)
      a.smoke = true;
    else
      a.rest.push_back(argv[i]);
  }
  return a;
}

}  // namespace bench
