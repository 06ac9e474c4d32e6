#pragma once

#include "Param.h"

#include <vector>

namespace GenericParam {

/// One of a list of labelled values. The parameter holds the value, not the index,
/// of the current entry, and keeps a value that matches no entry.
class ChoiceParam : public Param<unsigned int> {
public:
    /// One entry of the list: the label shown and the value it stands for.
    struct Choice {
        UIString label;
        int value = 0;
    };

    ChoiceParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, int value, const std::vector<Choice>& choices)
        : Param<unsigned int>(static_cast<unsigned int>(value), id, legend, tooltip, "int"), choices_(choices) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new ChoiceParam(*this)); }

    const std::vector<Choice>& choices() const { return choices_; }
    void setChoices(const std::vector<Choice>& choices) { choices_ = choices; }
    // The index of the entry with the value, or -1.
    int indexOfValue(unsigned int value) const {
        for (std::size_t i = 0; i < choices_.size(); ++i)
            if (static_cast<unsigned int>(choices_[i].value) == value) return static_cast<int>(i);
        return -1;
    }

protected:
    ChoiceParam(const ChoiceParam& other) : Zn::InternalRefCount(), Param<unsigned int>(other), choices_(other.choices_) {}

private:
    std::vector<Choice> choices_;
};

} // namespace GenericParam
