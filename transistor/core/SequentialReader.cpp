#include "transistor/core/SequentialReader.h"

#include <QFileInfo>
#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <string>

namespace seqio {
namespace {

constexpr qint64 ChunkSize = 64 * 1024;

bool isBlank(int c) { return c == ' ' || c == '\t'; }
bool isLineEnd(int c) { return c == '\r' || c == '\n'; }

void appendBounded(QByteArray& field, char c) {
  if (field.size() < SequentialReader::MaxFieldLength) field.append(c);
}

// Rough power of ten of a number written as [-]digits[.digits][e[+-]digits]
// (only its sign matters: above zero means too large, below means too small).
long decimalMagnitude(const std::string& num) {
  size_t i = num[0] == '-' ? 1 : 0;
  long intDigits = 0;
  long fracZeros = 0;
  bool seenNonZero = false;
  for (; i < num.size() && num[i] != '.' && num[i] != 'e'; ++i) {
    if (num[i] != '0') seenNonZero = true;
    if (seenNonZero) ++intDigits;
  }
  if (i < num.size() && num[i] == '.') {
    for (++i; i < num.size() && num[i] != 'e'; ++i) {
      if (intDigits > 0 || num[i] != '0') break;
      ++fracZeros;
    }
    while (i < num.size() && num[i] != 'e') ++i;
  }
  long exp = 0;
  if (i < num.size() && num[i] == 'e') {
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

int SequentialReader::open(const QString& path) {
  close();
  const QFileInfo info(path);
  if (!info.exists()) return FileNotFound;
  // Only a plain file is read: a directory, a pipe or a device is refused
  // before it is opened, so that nothing can block or never end.
  if (!info.isFile()) return PathFileAccess;
  file_.setFileName(path);
  // Unbuffered: this reader keeps its own buffer, and a repeated read
  // must see the file as it is now.
  if (!file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return PathFileAccess;
  if (file_.isSequential()) {
    file_.close();
    return PathFileAccess;
  }
  return Ok;
}

void SequentialReader::close() {
  if (file_.isOpen()) file_.close();
  buf_.clear();
  bufPos_ = 0;
  bufStart_ = 0;
  lineStart_ = true;
}

int SequentialReader::reset(const Mark& m) {
  if (!file_.isOpen() || !file_.seek(m.pos)) return DeviceIoError;
  buf_.clear();
  bufPos_ = 0;
  bufStart_ = m.pos;
  lineStart_ = m.lineStart;
  return Ok;
}

int SequentialReader::fill() {
  bufStart_ += buf_.size();
  bufPos_ = 0;
  buf_.clear();
  if (!file_.isOpen()) return -1;
  buf_ = file_.read(ChunkSize);
  if (buf_.isEmpty()) return file_.error() == QFileDevice::NoError ? -1 : -2;
  return 0;
}

int SequentialReader::peek() {
  if (bufPos_ >= buf_.size()) {
    const int r = fill();
    if (r < 0) return r;
  }
  return static_cast<unsigned char>(buf_[bufPos_]);
}

int SequentialReader::consumeLineEnd() {
  const int c = peek();
  if (c == '\r') {
    advance();
    if (peek() == '\n') advance();
  } else if (c == '\n') {
    advance();
  }
  lineStart_ = true;
  return Ok;
}

bool SequentialReader::atEnd() {
  // At the start of a line, blanks and empty lines before the next field are
  // skipped here already, so a file that ends in blank lines ends cleanly.
  for (;;) {
    const int c = peek();
    if (c < 0) return true;
    if (lineStart_ && isBlank(c)) {
      advance();
    } else if (lineStart_ && isLineEnd(c)) {
      consumeLineEnd();
    } else {
      return false;
    }
  }
}

int SequentialReader::readLine(QString& line) {
  int c = peek();
  if (c == -2) return DeviceIoError;
  if (c == -1) return InputPastEnd;
  QByteArray bytes;
  while ((c = peek()) >= 0 && !isLineEnd(c)) {
    appendBounded(bytes, char(c));
    advance();
  }
  if (c == -2) return DeviceIoError;
  consumeLineEnd();
  line = QString::fromLatin1(bytes);
  return Ok;
}

int SequentialReader::readField(QByteArray& field) {
  field.clear();
  int c;
  for (;;) {
    c = peek();
    if (c == -2) return DeviceIoError;
    if (c == -1) return InputPastEnd;
    if (isBlank(c)) {
      advance();
    } else if (lineStart_ && isLineEnd(c)) {
      consumeLineEnd();
    } else {
      break;
    }
  }

  if (c == '"') {
    advance();
    // A line end closes a quoted field too, so that a missing closing quote
    // costs one record and not the rest of the file.
    while ((c = peek()) >= 0 && c != '"' && !isLineEnd(c)) {
      appendBounded(field, char(c));
      advance();
    }
    if (c == '"') advance();
    // Anything between the closing quote and the delimiter is dropped.
    while ((c = peek()) >= 0 && c != ',' && !isLineEnd(c)) advance();
  } else {
    while ((c = peek()) >= 0 && c != ',' && !isLineEnd(c)) {
      appendBounded(field, char(c));
      advance();
    }
    while (!field.isEmpty() && isBlank(field.back())) field.chop(1);
  }
  if (c == -2) return DeviceIoError;

  if (c == ',') {
    advance();
    lineStart_ = false;
  } else if (c >= 0) {
    consumeLineEnd();
  } else {
    lineStart_ = false;
  }
  return Ok;
}

int SequentialReader::readText(QString& value) {
  QByteArray field;
  const int r = readField(field);
  if (r != Ok) return r;
  value = QString::fromLatin1(field);
  return Ok;
}

int parseNumberField(const QByteArray& field, double& value) {
  const QByteArray t = field.trimmed();
  if (t.isEmpty()) {
    value = 0.0;
    return Ok;
  }
  qsizetype i = 0;
  std::string num;
  if (t[i] == '+' || t[i] == '-') {
    if (t[i] == '-') num += '-';
    ++i;
  }
  bool digits = false;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; digits = true; }
  if (i < t.size() && t[i] == '.') {
    num += '.';
    ++i;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; digits = true; }
  }
  if (!digits) return TypeMismatch;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    ++i;
    num += 'e';
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) num += t[i++];
    bool expDigits = false;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; expDigits = true; }
    if (!expDigits) return TypeMismatch;
  }
  if (i != t.size()) return TypeMismatch;
  double v = 0.0;
  const auto res = std::from_chars(num.data(), num.data() + num.size(), v);
  if (res.ec == std::errc::result_out_of_range) {
    // Too large overflows; too small is simply zero.
    if (decimalMagnitude(num) > 0) return Overflow;
    v = 0.0;
  } else if (res.ec != std::errc()) {
    return TypeMismatch;
  }
  if (!std::isfinite(v)) return Overflow;
  value = v;
  return Ok;
}

int SequentialReader::readNumber(double& value) {
  QByteArray field;
  const int r = readField(field);
  return r != Ok ? r : parseNumberField(field, value);
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
