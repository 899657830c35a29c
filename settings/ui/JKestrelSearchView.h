#pragma once

#include "tarnwell/ui/JSuggestionsSearchField.h"

class QLabel;

namespace kestrel {

/// One row of the list of found settings.
class JKestrelSearchView final : public tarnwell::JSuggestionItemView {
    Q_OBJECT
public:
    explicit JKestrelSearchView(QWidget *parent);

    void setItem(const tarnwell::SuggestionItem &item) override;

protected:
    void onHighlightChanged() override;

private:
    QLabel *m_textfield;
};

}  // namespace kestrel
