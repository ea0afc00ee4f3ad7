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
// The text is 8-bit (Latin-1). Reading never keeps more than one buffer and
// one field of bounded length in memory, so any file, however long its lines,
// is read in one linear pass.
//
// Failures are reported as error numbers with their German descriptions:
// 6 number too large for its field, 13 text where a number belongs,
// 53 file missing, 57 device error, 62 read past the end of the file,
// 75 the path cannot be read as a file.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtGlobal>

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
  SequentialReader() = default;
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
  Mark mark() const { return {bufStart_ + bufPos_, lineStart_}; }
  int reset(const Mark& m);  // Ok or an error number

  // Reads the rest of the current line; the line end is consumed.
  int readLine(QString& line);
  int readText(QString& value);
  int readInt16(qint16& value);
  int readSingle(float& value);

  // Longest field or line that is kept; the rest of a longer one is skipped.
  static constexpr qsizetype MaxFieldLength = 4096;

 private:
  int peek();  // next byte, -1 at the end, -2 on a device error
  void advance() { ++bufPos_; }
  int fill();
  int readField(QByteArray& field);
  int readNumber(double& value);  // the next field as a number
  int consumeLineEnd();  // after a CR or LF at the read position

  QFile file_;
  QByteArray buf_;
  qsizetype bufPos_ = 0;
  qint64 bufStart_ = 0;
  bool lineStart_ = true;
};

// Parses the text of a numeric field: optional sign, digits with an optional
// point, optional exponent; surrounding blanks are allowed, an empty field is
// 0. Returns Ok or TypeMismatch.
int parseNumberField(const QByteArray& field, double& value);

}  // namespace seqio
