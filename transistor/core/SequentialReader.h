#pragma once
// Sequential reading of a comma-separated text file, field by field:
// - blanks (and tabs) before a field are skipped; an unquoted field ends at a
//   comma or a line end and loses its trailing blanks;
// - a field may be enclosed in double quotes (and must be if it holds a comma);
//   whatever follows the closing quote up to the next comma or line end is
//   dropped; a line end ends a quoted field whose closing quote is missing;
// - a line end (CR LF, CR or LF) ends a field just like a comma; empty lines
//   between records are skipped;
// - numbers use a point as decimal separator whatever the locale.
// The text is 8-bit (Latin-1). The file is read in large blocks and the
// fields are scanned where they lie in the block; only a field that runs
// across the end of a block is copied, and never more than MaxFieldLength
// bytes of it. So any file, however long its lines, is read in one linear
// pass with one block and one bounded field in memory.
//
// Failures are reported as error numbers with their German descriptions:
// 6 number too large for its field, 13 text where a number belongs,
// 53 file missing, 57 device error, 62 read past the end of the file,
// 75 the path cannot be read as a file.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtGlobal>
#include <memory>
#include <string>
#include <string_view>

namespace seqio {

enum : int {
  Ok = 0,
  Overflow = 6,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceIoError = 57,
  InputPastEnd = 62,
  PathFileAccess = 75,
};

// The German description of an error number ("Datei nicht gefunden" for 53).
QString errorDescription(int number);

class SequentialReader {
 public:
  SequentialReader();
  ~SequentialReader();
  SequentialReader(const SequentialReader&) = delete;
  SequentialReader& operator=(const SequentialReader&) = delete;

  // Opens path for reading from its start; returns Ok or an error number.
  int open(const QString& path);
  void close();

  // True when nothing but blank lines is left to read.
  bool atEnd();

  // A reading position, to come back to when a read is repeated.
  struct Mark {
    qint64 pos = 0;
    bool lineStart = true;
  };
  Mark mark() const { return {blockStart_ + (pos_ - block_.get()), lineStart_}; }
  int reset(const Mark& m);  // Ok or an error number

  // Reads the rest of the current line; the line end is consumed.
  int readLine(QString& line);

  // The next field's bytes, where they lie: valid until the next call on
  // this reader.
  int readField(std::string_view& field);

  int readText(std::string& value);  // Latin-1 bytes
  int readText(QString& value);
  int readInt16(qint16& value);
  int readSingle(float& value);

  // Longest field or line that is kept; the rest of a longer one is skipped.
  static constexpr qsizetype MaxFieldLength = 4096;
  // Bytes read from the file at a time.
  static constexpr qsizetype BlockSize = 1024 * 1024;

 private:
  enum Scan { Found, Ended, Failed };  // delimiter found, end of file, device error
  int fill();  // 0, -1 at the end of the file, -2 on a device error
  // Moves the read position to the first byte of `stop` (true) or to the
  // end of the file; the bytes passed go to the field unless `keep` is false.
  template <class Stop>
  Scan scanUntil(Stop stop, bool keep, std::string_view& field);
  [[gnu::noinline]] int readFieldAcrossBlocks(std::string_view& field);
  void consumeLineEnd();  // at a CR or LF
  int readNumber(double& value);  // the next field as a number

  QFile file_;
  std::unique_ptr<char[]> block_;
  const char* pos_ = nullptr;
  const char* end_ = nullptr;
  qint64 blockStart_ = 0;
  bool lineStart_ = true;
  std::string spill_;  // a field that ran across the end of a block
};

// Parses the text of a numeric field: optional sign, digits with an optional
// point, optional exponent; surrounding blanks are allowed, an empty field is
// 0. Returns Ok, TypeMismatch or Overflow (too large for a double).
int parseNumber(std::string_view field, double& value);
int parseNumberField(const QByteArray& field, double& value);

}  // namespace seqio
