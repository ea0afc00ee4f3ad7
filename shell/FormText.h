#pragma once
// A calculator form as plain text for the clipboard: the caption, then one
// line per field with its label (without the access-key "&"), its text and
// its unit, the standard values shown beside it, the chosen options and
// lists, and the result lines that a form adds of its own (a form with such
// lines offers them as `Q_INVOKABLE QStringList resultLines() const`).
#include <QString>

class QWidget;

namespace formtext {

QString text(QWidget* form);

// A label or frame whose text is a result line of its form (listed after
// the fields when it shows text).
void markResult(QWidget* w);

// Ctrl+Shift+C and the entry "Formular kopieren" in the context menu of the
// form's background (the action `actFormularKopieren`) put the form's text
// on the clipboard.
void install(QWidget* form);

}  // namespace formtext
