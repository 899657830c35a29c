#pragma once

class QWidget;

namespace kestrel::tarnwell {

/// Puts every fixed text below `root`, its own title included, into the interface language: texts of labels, buttons
/// and boxes, placeholders, tooltips, accessible names. To be called once, while they still show the English texts of
/// the form.
void TranslateControls(QWidget *root);

/// As above, for the texts of labels only.
void TranslateLabels(QWidget *root);

}  // namespace kestrel::tarnwell
