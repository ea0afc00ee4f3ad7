#include "shell/core/Json.h"

namespace json {

QString quote(const QString& s) {
  QString r = "\"";
  for (QChar c : s) {
    switch (c.unicode()) {
      case '"': r += "\\\""; break;
      case '\\': r += "\\\\"; break;
      case '\n': r += "\\n"; break;
      case '\r': r += "\\r"; break;
      case '\t': r += "\\t"; break;
      default:
        if (c.unicode() < 0x20)
          r += QString("\\u%1").arg(int(c.unicode()), 4, 16, QChar('0'));
        else
          r += c;
    }
  }
  return r + "\"";
}

Object& Object::addStrings(const QString& key, const QStringList& values) {
  QStringList q;
  for (const QString& v : values) q << quote(v);
  return raw(key, "[" + q.join(",") + "]");
}

QString Object::str() const {
  QStringList parts;
  for (const auto& [k, v] : items_) parts << quote(k) + ":" + v;
  return "{" + parts.join(",") + "}";
}

QString array(const std::vector<Object>& items) {
  QStringList parts;
  for (const Object& o : items) parts << o.str();
  return "[" + parts.join(",") + "]";
}

}  // namespace json
