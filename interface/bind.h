// Form-level variables by name: text conversions for talvero-drive and tests.
#pragma once

#include <QString>
#include <type_traits>

#include "interface/JeuPoker.h"

namespace varfmt {
// Booleans print as -1 and 0; in a text CR is \r, LF \n and a backslash \\.
inline QString Escape(const QString& s) {
  QString out;
  for (QChar c : s) {
    if (c == '\\')
      out += "\\\\";
    else if (c == '\r')
      out += "\\r";
    else if (c == '\n')
      out += "\\n";
    else
      out += c;
  }
  return out;
}
inline QString Unescape(const QString& s) {
  QString out;
  for (int i = 0; i < s.size(); ++i) {
    if (s[i] == '\\' && i + 1 < s.size()) {
      const QChar n = s[++i];
      out += n == 'r' ? QChar('\r') : n == 'n' ? QChar('\n') : n;
    } else {
      out += s[i];
    }
  }
  return out;
}
template <class T>
QString Format(const T& v) {
  if constexpr (std::is_same_v<T, bool>)
    return v ? "-1" : "0";
  else if constexpr (std::is_same_v<T, QString>)
    return Escape(v);
  else if constexpr (std::is_floating_point_v<T>)
    return QString::number(v, 'g', 15);
  else
    return QString::number(static_cast<long long>(v));
}
template <class T>
bool Parse(const QString& text, T& out) {
  if constexpr (std::is_same_v<T, bool>) {
    if (text == "-1" || text.compare("true", Qt::CaseInsensitive) == 0) {
      out = true;
      return true;
    }
    if (text == "0" || text.compare("false", Qt::CaseInsensitive) == 0) {
      out = false;
      return true;
    }
    return false;
  } else if constexpr (std::is_same_v<T, QString>) {
    out = Unescape(text);
    return true;
  } else if constexpr (std::is_floating_point_v<T>) {
    bool ok = false;
    const double d = text.toDouble(&ok);
    if (ok) out = static_cast<T>(d);
    return ok;
  } else {
    bool ok = false;
    const long long v = text.toLongLong(&ok);
    if (!ok || v < static_cast<long long>(std::numeric_limits<T>::min()) ||
        v > static_cast<long long>(std::numeric_limits<T>::max()))
      return false;
    out = static_cast<T>(v);
    return true;
  }
}
}  // namespace varfmt

template <class T>
void JeuPoker::Bind(const QString& name, T& scalar) {
  Variable v;
  v.get = [&scalar](int) { return varfmt::Format(scalar); };
  v.set = [&scalar](int, const QString& text) { return varfmt::Parse(text, scalar); };
  variables_[name] = std::move(v);
}

template <class T, int Lo, int Hi>
void JeuPoker::Bind(const QString& name, vb::Array<T, Lo, Hi>& array) {
  Variable v;
  v.low = Lo;
  v.high = Hi;
  v.get = [&array](int i) { return varfmt::Format(array(i)); };
  v.set = [&array](int i, const QString& text) { return varfmt::Parse(text, array(i)); };
  variables_[name] = std::move(v);
}
