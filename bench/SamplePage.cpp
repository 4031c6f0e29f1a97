// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/SamplePage.h"

namespace velor::bench {

QByteArray SamplePage(int bytes) {
  QByteArray page =
      "<!DOCTYPE html>\r\n<html>\r\n<head><meta "
      "charset=\"utf-8\"><title>Sample</title></head>\r\n<body>\r\n";
  for (int i = 0; page.size() < bytes; ++i) {
    if (i % 20 == 0) page += "<h2>Chapter " + QByteArray::number(i / 20) + "</h2>\r\n";
    if (i % 25 == 24)
      page +=
          "<table "
          "border=\"1\">\r\n<tr><td>one</td><td>two</td></tr>\r\n<tr><td>three</td><td>four</td></"
          "tr>\r\n</table>\r\n";
    page +=
        "<p>The quick brown fox jumps over the <b>lazy</b> dog, and <i>nobody</i> at "
        "<a href=\"http://example.com/\">example.com</a> minds it in the least.</p>\r\n";
  }
  return page + "</body>\r\n</html>\r\n";
}

QByteArray ShapedPage(const Shape &shape) {
  return "<!DOCTYPE html>\n<html><head><title>Shape</title></head><body>\n" +
         QByteArray(shape.before) + QByteArray(shape.part).repeated(shape.parts) + shape.after +
         "\n</body></html>\n";
}

}  // namespace velor::bench
