#pragma once
// The catalogue search's file-error question, asked through the dialog
// service: title "Fehler 53", warning icon, Retry and Cancel.
#include "transistor/core/TransistorSuche.h"

namespace transistor {

FehlerFrage dialogFrage();

}  // namespace transistor
