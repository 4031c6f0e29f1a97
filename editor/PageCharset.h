// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// What a person is to know before a page is converted into another charset.
namespace velor {

class EditingComponent;

/// The WHATWG names of the charsets that a page can be converted to.
QStringList CharsetsForPages();

/// Why the page cannot be converted, as a sentence; empty where it can. Raises RuntimeError where
/// the page does not answer.
QString ReasonNotToConvert(EditingComponent &page);

/// The characters of the page that the charset lacks, each in words with how often it stands where.
/// Raises RuntimeError where the page does not answer.
QStringList CharactersLacking(EditingComponent &page, const QString &charset);

}  // namespace velor
