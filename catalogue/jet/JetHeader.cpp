// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetHeader.h"

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetCipher.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace velor {

namespace {

constexpr char JetName[] = "Standard Jet DB";
constexpr char AceName[] = "Standard ACE DB";
constexpr unsigned char Jet3 = 0;
constexpr unsigned char Jet4 = 1;

bool IsNamed(const jet::Page &page, const char *name) {
  return std::memcmp(page.data() + jet::EngineName, name, std::strlen(name)) == 0;
}

/// What the file is and what to do, for people; empty for a Jet 4 file.
QString Objection(const jet::Page &page) {
  if (IsNamed(page, AceName)) {
    return Words::tr(
        "it is in the ACE format (.accdb, Access 2007 or later), which cannot be opened; save it "
        "in the format of Access 2002-2003 (.mdb) with the program that made it");
  }
  if (!IsNamed(page, JetName)) return Words::tr("it is no database");
  const unsigned char version = page[jet::Version];
  if (version == Jet3) {
    return Words::tr(
        "it is in the Jet 3 format (Access 95 or 97), which cannot be opened; convert it to the "
        "format of Access 2000 or 2002-2003 (Jet 4)");
  }
  if (version != Jet4) {
    return Words::tr(
               "it is in version %1 of the Jet format, and only Jet 4 can be opened; convert it to "
               "the format of Access 2000 or 2002-2003")
        .arg(version);
  }
  return {};
}

/// The mask is the creation date in whole days.
bool HasPassword(const jet::Page &page) {
  const double date = jet::GetDouble(page.data() + jet::CreationDate);
  constexpr double Limit = std::numeric_limits<qint32>::max();
  const qint32 mask = std::abs(date) < Limit ? static_cast<qint32>(date) : 0;
  for (int at = 0; at < jet::PasswordBytes; at += static_cast<int>(sizeof mask)) {
    if (jet::Get<qint32>(page.data() + jet::Password + at) != mask) return true;
  }
  return false;
}

[[noreturn]] void Refuse(JetStorage &storage, const QString &objection) {
  throw RuntimeError::Of(
      ErrorNumber::DeviceIoError, QStringLiteral("Database.Open"),
      Words::tr("The catalogue %1 cannot be opened: %2").arg(storage.Path(), objection));
}

}  // namespace

quint32 ReadJetHeader(JetStorage &storage) {
  jet::Page page;
  storage.ReadPage(0, page);
  if (const QString objection = Objection(page); !objection.isEmpty()) Refuse(storage, objection);
  ApplyRc4(jet::HeaderKey,
           std::span(page).subspan(jet::HeaderEncodedStart,
                                   jet::HeaderEncodedEnd - jet::HeaderEncodedStart));
  if (HasPassword(page)) {
    Refuse(storage, Words::tr("it is protected by a password; remove the password with the "
                              "program that set it"));
  }
  return jet::Get<quint32>(page.data() + jet::PageKey);
}

}  // namespace velor
