#include "ComponentTextBox.h"

ComponentTextBox::ComponentTextBox(const TitleTextBox::InitArgs& args) : TitleTextBox(args) {
    setCharacters(L".0123456789", TextBoxBase::kOnlyCharacters);
    setAlignment(TextBoxBase::TextAlignment(Glib::kAlignCentreH, Glib::kAlignTop));
    setStyle(kLegendAgainstBox);
}
