#include "transistor/SucheDialog.h"

#include "shell/DialogService.h"

namespace transistor {

FehlerFrage dialogFrage() {
  return [](const DateiFehler& f) {
    const dialogs::Answer a =
        dialogs::msgBox(f.text, dialogs::Icon::Exclamation, dialogs::Buttons::RetryCancel, f.titel);
    return a == dialogs::Answer::Retry ? FehlerAntwort::Wiederholen : FehlerAntwort::Abbrechen;
  };
}

}  // namespace transistor
