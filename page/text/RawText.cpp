// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/RawText.h"

#include <algorithm>

namespace velor {

namespace {

class RawTextScan {
 public:
  RawTextScan(QStringView html, QStringView name)
      : html_(html), name_(name), isScript_(name.compare(u"script", Qt::CaseInsensitive) == 0) {}

  qsizetype EndFrom(qsizetype at) {
    for (; at < html_.size(); ++at) {
      if (isScript_) UpdateEscape(at);
      if (html_[at] != u'<' || !IsTag(at + 1, u"/")) continue;
      if (escape_ != Escape::Double) return at;
      escape_ = Escape::Single;
    }
    return html_.size();
  }

 private:
  /// The states of the standard's script escapes. Single: behind "<!--", up to "-->". Double:
  /// there, and behind a start tag of the script element; its next end tag does not end the script.
  enum class Escape { None, Single, Double };

  void UpdateEscape(qsizetype at) {
    if (html_[at] == u'-' && Has(at, u"-->"))
      escape_ = Escape::None;
    else if (html_[at] != u'<')
      return;
    else if (escape_ == Escape::None && Has(at, u"<!--"))
      escape_ = Escape::Single;
    else if (escape_ == Escape::Single && IsTag(at + 1, u""))
      escape_ = Escape::Double;
  }

  bool Has(qsizetype at, QStringView text) const {
    return html_.sliced(std::min(at, html_.size())).startsWith(text, Qt::CaseInsensitive);
  }
  /// Whether `lead` and the element's name stand at `at`, and the name ends behind them.
  bool IsTag(qsizetype at, QStringView lead) const {
    if (!Has(at, lead) || !Has(at + lead.size(), name_)) return false;
    const qsizetype end = at + lead.size() + name_.size();
    return end < html_.size() && QStringView(u"> /\t\n\f\r").contains(html_[end]);
  }

  QStringView html_;
  QStringView name_;
  bool isScript_;
  Escape escape_ = Escape::None;
};

}  // namespace

qsizetype EndOfRawText(QStringView html, qsizetype from, QStringView name) {
  return RawTextScan(html, name).EndFrom(from);
}

}  // namespace velor
