#pragma once
// Shared procedures used by every form: number parsing, powers of ten,
// the line break of all multi-line texts, the program's identity and folder.
#include <QString>

namespace Module1 {

// Carriage return and line feed; joins the lines of every multi-line text.
inline const QString NL = QStringLiteral("\r\n");

inline const QString AppTitle = QStringLiteral("Quarzel");
// Follows a form's caption on the printout identification line.
inline const QString AppIdentification = QStringLiteral("- Quarzel, Programm für Praktiker");

QString versionString();          // "1.0.0"
int versionMajor();
int versionMinor();
int versionRevision();

// Reads the leading decimal number of a text after turning its first comma
// into a point. Text without a leading number, or a number too large for a
// double, yields 0. Never fails.
double ParseNumber(const QString& text);

double Log10(double x);
double TenPow(double x);

// The folder that counts as the program's own directory (catalogue, pictures).
QString appDir();
void setAppDir(const QString& dir);

}  // namespace Module1
