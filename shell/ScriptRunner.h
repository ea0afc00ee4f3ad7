#pragma once
// Script mode: drives the real main window and forms from a command file
// and prints one JSON object per line for every event.
#include <QString>
#include <QStringList>
#include <functional>

class MDIForm1;

namespace script {

// Prints one line of output at once.
void emitLine(const QString& json);

// Extra commands that a part of the program brings along: the handler gets
// the rest of the line and returns an error text ("" on success).
using Command = std::function<QString(const QString& rest)>;
bool registerCommand(const QString& word, Command command);

// Splits off the next blank-separated word; a word in double quotes may hold
// blanks and escapes.
QString nextWord(QString& rest);
// A TEXT argument: the rest of the line as it stands, or a quoted text.
QString textArgument(const QString& rest);

// Installs the dialog and printer seams of script mode.
void installSeams();

// Runs the script (path, or "-" for standard input); returns the exit status.
int run(MDIForm1& main, const QString& path);

}  // namespace script
