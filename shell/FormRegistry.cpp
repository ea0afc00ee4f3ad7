#include "shell/FormRegistry.h"

#include <map>

namespace forms {
namespace {
std::map<QString, Factory>& table() {
  static std::map<QString, Factory> t;
  return t;
}
}  // namespace

bool registerForm(const QString& name, Factory factory) {
  table()[name] = std::move(factory);
  return true;
}

bool has(const QString& name) { return table().count(name) != 0; }

QWidget* create(const QString& name) {
  auto it = table().find(name);
  return it == table().end() ? nullptr : it->second();
}

QStringList names() {
  QStringList r;
  for (const auto& [n, f] : table()) r << n;
  return r;
}

}  // namespace forms
