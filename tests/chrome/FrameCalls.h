// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/chrome/RecordingWindowSystem.h"

#include <string>

namespace velor {

/// The control whose frame is painted, and the window that it stands in.
inline constexpr WindowHandle Control = 20;
inline constexpr WindowHandle ParentWindow = 10;

/// The calls that frames are made of, as RecordingWindowSystem writes them down.

inline QStringList PenCalls(std::uint32_t color, const QStringList &lines) {
  const int index = static_cast<int>(color & 0xff);
  QStringList calls{QStringLiteral("translate %1 to %2").arg(color, 0, 16).arg(index),
                    QStringLiteral("create pen %1").arg(index), QStringLiteral("select")};
  calls += lines;
  calls += {QStringLiteral("deselect"), QStringLiteral("delete pen")};
  return calls;
}

/// A frame with an area, its edges written out: both colours, then left, top, right, bottom.
inline QStringList FrameCalls(std::uint32_t topLeft, std::uint32_t bottomRight,
                              const PixelRect &r) {
  const auto text = &RecordingWindowSystem::Text;
  return PenCalls(topLeft, {QStringLiteral("move ") + text({r.left, r.bottom - 1}),
                            QStringLiteral("line ") + text({r.left, r.top}),
                            QStringLiteral("line ") + text({r.right - 1, r.top})}) +
         PenCalls(bottomRight, {QStringLiteral("line ") + text({r.right - 1, r.bottom - 1}),
                                QStringLiteral("line ") + text({r.left, r.bottom - 1})});
}

/// An upright line as a frame without width draws it.
inline QStringList UprightCalls(std::uint32_t color, std::int32_t x, std::int32_t top,
                                std::int32_t bottom) {
  const auto text = &RecordingWindowSystem::Text;
  return PenCalls(color, {QStringLiteral("move ") + text({x, bottom - 1}),
                          QStringLiteral("line ") + text({x, top}),
                          QStringLiteral("line ") + text({x - 1, top})});
}

inline std::string Lines(const QStringList &calls) {
  return calls.join(u'\n').toStdString();
}

/// A painting on a window: all of it between one device context's taking and giving back.
inline std::string Painting(WindowHandle surface, const QStringList &calls) {
  return Lines(QStringList(QStringLiteral("take %1").arg(surface)) + calls +
               QStringList(QStringLiteral("give back")));
}

inline constexpr std::uint32_t WindowRef = 0x80000005;
inline constexpr std::uint32_t FaceRef = 0x8000000F;
inline constexpr std::uint32_t ShadowRef = 0x80000010;
inline constexpr std::uint32_t LightRef = 0x80000014;

}  // namespace velor
