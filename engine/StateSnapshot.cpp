// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/StateSnapshot.h"

#include "platform/EditingCommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace velor {

namespace {

/// The status of that published number; anything else is not supported.
CommandStatus StatusOfNumber(int number) {
  switch (static_cast<CommandStatus>(number)) {
    case CommandStatus::Disabled:
    case CommandStatus::Enabled:
    case CommandStatus::Latched:
    case CommandStatus::Ninched:
      return static_cast<CommandStatus>(number);
    case CommandStatus::NotSupported:
      break;
  }
  return CommandStatus::NotSupported;
}

SelectionType SelectionOfName(const QString &name) {
  if (name == u"Text") return SelectionType::Text;
  if (name == u"Control") return SelectionType::Control;
  return SelectionType::None;
}

HtmlElement ElementOf(const QJsonObject &object) {
  HtmlElement element;
  element.tagName = object[u"tag"].toString();
  const QJsonArray attributes = object[u"attributes"].toArray();
  for (const QJsonValue &pair : attributes)
    element.attributes.emplace_back(pair[0].toString(), pair[1].toString());
  return element;
}

QSize SizeOf(const QJsonValue &pair) {
  return {pair[0].toInt(), pair[1].toInt()};
}

struct ValueField {
  EditingCommand command;
  QString StateSnapshot::*field;
};

constexpr ValueField ValueFields[] = {
    {EditingCommand::GetFontName, &StateSnapshot::fontName},
    {EditingCommand::GetFontSize, &StateSnapshot::fontSize},
    {EditingCommand::GetForeColor, &StateSnapshot::foreColor},
    {EditingCommand::GetBackColor, &StateSnapshot::backColor},
    {EditingCommand::GetBlockFormat, &StateSnapshot::blockFormat},
};

/// [left, top, width, height]; null for anything else.
QRect BoxOf(const QJsonArray &box) {
  if (box.size() != 4) return {};
  return {QPoint(box[0].toInt(), box[1].toInt()), QSize(box[2].toInt(), box[3].toInt())};
}

}  // namespace

std::optional<StateSnapshot> StateSnapshot::FromJson(const QString &json) {
  const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
  if (!document.isObject()) return std::nullopt;
  const QJsonObject object = document.object();
  StateSnapshot state;
  state.version = object[u"version"].toInt();
  state.dirty = object[u"dirty"].toBool();
  state.generation = object[u"generation"].toInt();
  const QJsonObject commands = object[u"commands"].toObject();
  for (auto entry = commands.begin(); entry != commands.end(); ++entry)
    state.commands[static_cast<EditingCommand>(entry.key().toInt())] =
        StatusOfNumber(entry.value().toInt());
  state.fontName = object[u"fontName"].toString();
  state.fontSize = object[u"fontSize"].toString();
  state.foreColor = object[u"foreColor"].toString();
  state.backColor = object[u"backColor"].toString();
  state.blockFormat = object[u"blockFormat"].toString();
  state.selection = SelectionOfName(object[u"selection"].toString());
  state.element = ElementOf(object[u"element"].toObject());
  state.link = ElementOf(object[u"link"].toObject());
  const QJsonObject picture = object[u"picture"].toObject();
  state.picturePixels = SizeOf(picture[u"pixels"]);
  state.pictureShown = SizeOf(picture[u"shown"]);
  const QJsonArray path = object[u"path"].toArray();
  for (const QJsonValue &element : path) state.path << element.toString();
  const QJsonArray elements = object[u"pathNumbers"].toArray();
  for (const QJsonValue &element : elements) state.pathElements << element.toInt();
  state.place = BoxOf(object[u"place"].toArray());
  state.asked = BoxOf(object[u"asked"].toArray());
  const QJsonArray cells = object[u"cells"].toArray();
  if (cells.size() == 4)
    state.cells = {QPoint(cells[0].toInt(), cells[1].toInt()),
                   QPoint(cells[2].toInt(), cells[3].toInt())};
  return state;
}

CommandStatus StateSnapshot::StatusOf(EditingCommand command) const {
  const auto status = commands.find(command);
  return status != commands.end() ? status->second : CommandStatus::NotSupported;
}

std::optional<QString> StateSnapshot::ValueOf(EditingCommand command) const {
  for (const ValueField &value : ValueFields)
    if (value.command == command) return this->*value.field;
  return std::nullopt;
}

}  // namespace velor
