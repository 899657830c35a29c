#pragma once

#include <QCheckBox>

namespace kestrel {

/// A switch on the settings page, with its title in the colour of quiet text.
class _SettingCheckButtonCell : public QCheckBox {
    Q_OBJECT
public:
    explicit _SettingCheckButtonCell(QWidget *parent = nullptr);
};

}  // namespace kestrel
