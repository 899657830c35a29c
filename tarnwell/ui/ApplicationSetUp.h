#pragma once

class QString;
class QTranslator;

/// What every program of the product with windows asks for at its start.
namespace kestrel::tarnwell {

/// Loads the texts of the desktop's own dialogs, which Qt brings along, and installs them; `translator` must live as
/// long as windows are shown. Without a catalogue of that language they stay English.
void installDialogTexts(QTranslator &translator, const QString &language);

/// For the desktop's task list, which the first window need not wait for.
void setWindowIcon();

}  // namespace kestrel::tarnwell
