#include "_SettingCheckButtonCell.h"

#include "tarnwell/ui/TextStyles.h"

namespace kestrel {

_SettingCheckButtonCell::_SettingCheckButtonCell(QWidget *parent) : QCheckBox(parent)
{
    tarnwell::setTextStyle(this, 13, QFont::Normal, tarnwell::palette::quietText);
}

}  // namespace kestrel
