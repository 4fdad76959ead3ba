#pragma once

#include <QByteArray>

#include <optional>

struct EpicAppEntry;

/// The app that the text of an Epic launcher's manifest names: a JSON object, of which anything may be missing. No
/// value when it is not one.
std::optional<EpicAppEntry> parseEpicManifest(const QByteArray& json);
