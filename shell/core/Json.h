#pragma once
// A small JSON writer that keeps keys in the order they were added, for the
// lines that script mode prints.
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

namespace json {

QString quote(const QString& s);

class Object {
 public:
  Object& add(const QString& key, const QString& value) { return raw(key, quote(value)); }
  Object& add(const QString& key, const char* value) { return add(key, QString::fromUtf8(value)); }
  Object& add(const QString& key, bool value) { return raw(key, value ? "true" : "false"); }
  Object& add(const QString& key, int value) { return raw(key, QString::number(value)); }
  Object& add(const QString& key, const Object& value) { return raw(key, value.str()); }
  Object& addStrings(const QString& key, const QStringList& values);
  Object& raw(const QString& key, const QString& encoded) {
    items_.emplace_back(key, encoded);
    return *this;
  }
  QString str() const;

 private:
  std::vector<std::pair<QString, QString>> items_;
};

QString array(const std::vector<Object>& items);

}  // namespace json
