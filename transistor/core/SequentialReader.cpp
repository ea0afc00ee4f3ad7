#include "transistor/core/SequentialReader.h"

#include <QFileInfo>
#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>

namespace seqio {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }
// As function objects, so that the scans inline them.
constexpr auto lineEnd = [](char c) { return c == '\r' || c == '\n'; };
constexpr auto delimiter = [](char c) { return c == ',' || c == '\r' || c == '\n'; };
// A line end closes a quoted field too, so that a missing closing quote
// costs one record and not the rest of the file.
constexpr auto quoteOrLineEnd = [](char c) { return c == '"' || c == '\r' || c == '\n'; };
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isExponent(char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; }

// Rough power of ten of a number written as [+-]digits[.digits][e[+-]digits]
// (only its sign matters: above zero means too large, below means too small).
long decimalMagnitude(std::string_view num) {
  size_t i = !num.empty() && (num[0] == '-' || num[0] == '+') ? 1 : 0;
  long intDigits = 0;
  long fracZeros = 0;
  bool seenNonZero = false;
  for (; i < num.size() && num[i] != '.' && !isExponent(num[i]); ++i) {
    if (num[i] != '0') seenNonZero = true;
    if (seenNonZero) ++intDigits;
  }
  if (i < num.size() && num[i] == '.') {
    for (++i; i < num.size() && !isExponent(num[i]); ++i) {
      if (intDigits > 0 || num[i] != '0') break;
      ++fracZeros;
    }
    while (i < num.size() && !isExponent(num[i])) ++i;
  }
  long exp = 0;
  if (i < num.size()) {
    ++i;
    const bool negative = i < num.size() && num[i] == '-';
    if (i < num.size() && (num[i] == '-' || num[i] == '+')) ++i;
    for (; i < num.size(); ++i) exp = std::min(exp * 10 + (num[i] - '0'), 1000000L);
    if (negative) exp = -exp;
  }
  return intDigits > 0 ? intDigits - 1 + exp : exp - fracZeros - 1;
}

}  // namespace

QString errorDescription(int number) {
  switch (number) {
    case Overflow: return QStringLiteral("Überlauf");
    case TypeMismatch: return QStringLiteral("Typen unverträglich");
    case FileNotFound: return QStringLiteral("Datei nicht gefunden");
    case DeviceIoError: return QStringLiteral("Fehler beim Geräte-E/A");
    case InputPastEnd: return QStringLiteral("Einlesen hinter Dateiende");
    case PathFileAccess: return QStringLiteral("Fehler beim Zugriff auf Pfad/Datei");
    default: return QStringLiteral("Anwendungs- oder objektdefinierter Fehler");
  }
}

SequentialReader::SequentialReader() = default;
SequentialReader::~SequentialReader() = default;

int SequentialReader::open(const QString& path) {
  close();
  const QFileInfo info(path);
  if (!info.exists()) return FileNotFound;
  // Only a plain file is read: a directory, a pipe or a device is refused
  // before it is opened, so that nothing can block or never end.
  if (!info.isFile()) return PathFileAccess;
  file_.setFileName(path);
  // Unbuffered: this reader keeps its own block, and a repeated read
  // must see the file as it is now.
  if (!file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return PathFileAccess;
  if (file_.isSequential()) {
    file_.close();
    return PathFileAccess;
  }
  if (!block_) block_ = std::make_unique_for_overwrite<char[]>(BlockSize);
  pos_ = end_ = block_.get();
  return Ok;
}

void SequentialReader::close() {
  if (file_.isOpen()) file_.close();
  pos_ = end_ = block_.get();
  blockStart_ = 0;
  lineStart_ = true;
  spill_.clear();
}

int SequentialReader::reset(const Mark& m) {
  if (!file_.isOpen() || !file_.seek(m.pos)) return DeviceIoError;
  pos_ = end_ = block_.get();
  blockStart_ = m.pos;
  lineStart_ = m.lineStart;
  return Ok;
}

int SequentialReader::fill() {
  blockStart_ += end_ - block_.get();
  pos_ = end_ = block_.get();
  if (!file_.isOpen()) return -1;
  const qint64 n = file_.read(block_.get(), BlockSize);
  if (n <= 0) return n == 0 && file_.error() == QFileDevice::NoError ? -1 : -2;
  end_ = block_.get() + n;
  return 0;
}

template <class Stop>
SequentialReader::Scan SequentialReader::scanUntil(Stop stop, bool keep, std::string_view& field) {
  bool spilled = false;
  const auto spill = [&](const char* from, const char* to) {
    if (!spilled) spill_.clear();
    spilled = true;
    const size_t room = size_t(MaxFieldLength) - std::min(spill_.size(), size_t(MaxFieldLength));
    spill_.append(from, std::min(size_t(to - from), room));
  };
  for (;;) {
    const char* start = pos_;
    const char* p = std::find_if(start, end_, stop);
    pos_ = p;
    if (p != end_) {
      if (!keep) return Found;
      if (spilled) {
        spill(start, p);
        field = spill_;
      } else {
        field = std::string_view(start, std::min(size_t(p - start), size_t(MaxFieldLength)));
      }
      return Found;
    }
    // The field goes on in the next block: keep what this one holds.
    if (keep) spill(start, p);
    const int r = fill();
    if (r < 0) {
      field = keep ? std::string_view(spill_) : std::string_view();
      return r == -1 ? Ended : Failed;
    }
  }
}

void SequentialReader::consumeLineEnd() {
  if (*pos_ == '\r') {
    ++pos_;
    if (pos_ == end_) fill();
    if (pos_ != end_ && *pos_ == '\n') ++pos_;
  } else {
    ++pos_;
  }
  lineStart_ = true;
}

bool SequentialReader::atEnd() {
  // At the start of a line, blanks and empty lines before the next field are
  // skipped here already, so a file that ends in blank lines ends cleanly.
  for (;;) {
    if (pos_ == end_ && fill() < 0) return true;
    const char c = *pos_;
    if (lineStart_ && isBlank(c)) {
      ++pos_;
    } else if (lineStart_ && isLineEnd(c)) {
      consumeLineEnd();
    } else {
      return false;
    }
  }
}

int SequentialReader::readLine(QString& line) {
  if (pos_ == end_) {
    const int r = fill();
    if (r == -2) return DeviceIoError;
    if (r == -1) return InputPastEnd;
  }
  std::string_view bytes;
  const Scan s = scanUntil(lineEnd, true, bytes);
  if (s == Failed) return DeviceIoError;
  line = QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
  if (s == Found)
    consumeLineEnd();
  else
    lineStart_ = true;
  return Ok;
}

int SequentialReader::readField(std::string_view& field) {
  // Most fields lie whole in the block, delimiter included, with a byte to
  // spare after a line end: they are taken where they lie. Any other field
  // (across the block's end, at the end of the file, or after empty lines)
  // goes the general way, with the same rules.
  const char* p = pos_;
  while (p != end_ && isBlank(*p)) ++p;
  if (p != end_ && !(lineStart_ && isLineEnd(*p))) {
    const char* von = p;
    const char* bis = nullptr;
    const char* q = nullptr;
    if (*p == '"') {
      von = p + 1;
      bis = std::find_if(von, end_, quoteOrLineEnd);
      if (bis == end_)
        q = end_;
      else if (*bis == '"')
        q = std::find_if(bis + 1, end_, delimiter);
      else
        q = bis;  // no closing quote before the line end
    } else {
      q = std::find_if(p, end_, delimiter);
      bis = q;
      while (bis != von && isBlank(bis[-1])) --bis;
    }
    if (q != end_ && (*q == ',' || q + 1 != end_) && bis - von <= MaxFieldLength) {
      field = std::string_view(von, size_t(bis - von));
      if (*q == ',') {
        pos_ = q + 1;
        lineStart_ = false;
      } else {
        pos_ = q + (q[0] == '\r' && q[1] == '\n' ? 2 : 1);
        lineStart_ = true;
      }
      return Ok;
    }
  }
  return readFieldAcrossBlocks(field);
}

int SequentialReader::readFieldAcrossBlocks(std::string_view& field) {
  char c = 0;
  for (;;) {
    if (pos_ == end_) {
      const int r = fill();
      if (r == -2) return DeviceIoError;
      if (r == -1) return InputPastEnd;
    }
    c = *pos_;
    if (isBlank(c)) {
      ++pos_;
    } else if (lineStart_ && isLineEnd(c)) {
      consumeLineEnd();
    } else {
      break;
    }
  }

  // A field that lies in the block must be copied before the block is
  // refilled underneath it.
  const auto secure = [&] {
    if (field.data() == spill_.data()) return;
    spill_.assign(field);
    field = spill_;
  };
  Scan s;
  if (c == '"') {
    ++pos_;
    s = scanUntil(quoteOrLineEnd, true, field);
    if (s == Found && *pos_ == '"') {
      ++pos_;
      // Anything between the closing quote and the delimiter is dropped.
      if (std::find_if(pos_, end_, delimiter) == end_) secure();
      std::string_view dropped;
      s = scanUntil(delimiter, false, dropped);
    }
  } else {
    s = scanUntil(delimiter, true, field);
    while (!field.empty() && isBlank(field.back())) field.remove_suffix(1);
  }
  if (s == Failed) return DeviceIoError;

  if (s == Ended) {
    lineStart_ = false;
  } else if (*pos_ == ',') {
    ++pos_;
    lineStart_ = false;
  } else {
    if (*pos_ == '\r' && pos_ + 1 == end_) secure();
    consumeLineEnd();
  }
  return Ok;
}

int SequentialReader::readText(std::string& value) {
  std::string_view field;
  const int r = readField(field);
  if (r == Ok) value.assign(field);
  return r;
}

int SequentialReader::readText(QString& value) {
  std::string_view field;
  const int r = readField(field);
  if (r == Ok) value = QString::fromLatin1(field.data(), qsizetype(field.size()));
  return r;
}

namespace {

// The rest of a number after its digits and point, t[i] on: an exponent, or
// more digits than the short way takes. Converted by from_chars.
[[gnu::noinline]] int parseLongNumber(std::string_view t, size_t i, double& value) {
  size_t exponentAt = t.size();
  if (i < t.size() && isExponent(t[i])) {
    exponentAt = i++;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    const size_t expStart = i;
    while (i < t.size() && isDigit(t[i])) ++i;
    if (i == expStart) return TypeMismatch;
  }
  if (i != t.size()) return TypeMismatch;

  // from_chars takes no leading '+' and writes the exponent with an 'e'.
  std::string_view num = t[0] == '+' ? t.substr(1) : t;
  std::string copy;
  if (exponentAt < t.size() && (t[exponentAt] == 'd' || t[exponentAt] == 'D')) {
    copy.assign(num);
    copy[exponentAt - (t.size() - num.size())] = 'e';
    num = copy;
  }
  double v = 0.0;
  const auto res = std::from_chars(num.data(), num.data() + num.size(), v);
  if (res.ec == std::errc::result_out_of_range) {
    // Too large overflows; too small is simply zero.
    if (decimalMagnitude(num) > 0) return Overflow;
    v = 0.0;
  } else if (res.ec != std::errc() || res.ptr != num.data() + num.size()) {
    return TypeMismatch;
  }
  if (!std::isfinite(v)) return Overflow;
  value = v;
  return Ok;
}

}  // namespace

namespace {

[[gnu::always_inline]] inline int parseNumberInPlace(std::string_view t, double& value) {
  while (!t.empty() && isSpace(t.front())) t.remove_prefix(1);
  while (!t.empty() && isSpace(t.back())) t.remove_suffix(1);
  if (t.empty()) {
    value = 0.0;
    return Ok;
  }
  size_t i = 0;
  const bool negative = t[0] == '-';
  if (t[0] == '+' || t[0] == '-') ++i;
  const size_t intStart = i;
  unsigned long long digitsValue = 0;
  for (; i < t.size() && isDigit(t[i]); ++i) digitsValue = digitsValue * 10 + unsigned(t[i] - '0');
  size_t digits = i - intStart;
  size_t fracDigits = 0;
  if (i < t.size() && t[i] == '.') {
    const size_t fracStart = ++i;
    for (; i < t.size() && isDigit(t[i]); ++i) digitsValue = digitsValue * 10 + unsigned(t[i] - '0');
    fracDigits = i - fracStart;
    digits += fracDigits;
  }
  if (digits == 0) return TypeMismatch;
  // Up to 15 digits: the digits as a whole number and the power of ten are
  // both exact in a double, so one division rounds the value exactly as
  // the full conversion does.
  if (i == t.size() && digits <= 15) {
    static constexpr double kPow10[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    double v = double(digitsValue);
    if (fracDigits > 0) v /= kPow10[fracDigits];
    value = negative ? -v : v;
    return Ok;
  }
  return parseLongNumber(t, i, value);
}

}  // namespace

int parseNumber(std::string_view t, double& value) { return parseNumberInPlace(t, value); }

int parseNumberField(const QByteArray& field, double& value) {
  return parseNumber(std::string_view(field.constData(), size_t(field.size())), value);
}

int SequentialReader::readNumber(double& value) {
  std::string_view field;
  const int r = readField(field);
  return r != Ok ? r : parseNumberInPlace(field, value);
}

int SequentialReader::readInt16(qint16& value) {
  double v = 0.0;
  if (const int r = readNumber(v); r != Ok) return r;
  v = std::nearbyint(v);  // halves go to the even neighbour
  if (v < -32768.0 || v > 32767.0) return Overflow;
  value = qint16(v);
  return Ok;
}

int SequentialReader::readSingle(float& value) {
  double v = 0.0;
  if (const int r = readNumber(v); r != Ok) return r;
  if (std::fabs(v) > double(FLT_MAX)) return Overflow;
  value = float(v);
  return Ok;
}

}  // namespace seqio
