// SPDX-License-Identifier: GPL-3.0-or-later
// The caret's place as a path of elements, which can be found in the page's source too.
#include "engine/BridgeScript.h"
#include "engine/WebEditor.h"

#include <QVariantMap>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Asking for the place delays a change of modes no longer than this.
constexpr std::chrono::milliseconds PlaceLimit = 400ms;

const QString Name = QStringLiteral("name");
const QString Ordinal = QStringLiteral("ordinal");
const QString Offset = QStringLiteral("offset");

QString InScript(const ElementPlaces &places) {
  QVariantList list;
  for (const ElementPlace &place : places)
    list << QVariantMap{{Name, place.name}, {Ordinal, place.ordinal}, {Offset, place.offset}};
  return ScriptValue(list);
}

}  // namespace

ElementPlaces WebEditor::AskForPlaces(const QString &call) {
  ElementPlaces places;
  if (document_.View() == nullptr) return places;
  const auto answer = document_.View()->Ask(call, PlaceLimit);
  if (!answer) return places;
  for (const QVariant &each : answer->toList()) {
    const QVariantMap place = each.toMap();
    places.push_back({place[Name].toString(), place[Ordinal].toInt(), place[Offset].toInt()});
  }
  return places;
}

ElementPlaces WebEditor::CaretPlaces() {
  return AskForPlaces(QStringLiteral("velor.caretPlaces()"));
}

void WebEditor::ShowPlace(const ElementPlaces &places) {
  ShowStretch({places});
}

ElementStretch WebEditor::SelectedPlaces() {
  const Lifetime::Watch life = document_.WatchEditor();
  ElementStretch stretch{CaretPlaces()};
  if (!life.IsOver()) stretch.end = AskForPlaces(QStringLiteral("velor.endPlaces()"));
  return stretch;
}

void WebEditor::ShowStretch(const ElementStretch &stretch) {
  document_.Run(
      QStringLiteral("velor.showPlace(%1,%2)").arg(InScript(stretch.start), InScript(stretch.end)));
}

}  // namespace velor
