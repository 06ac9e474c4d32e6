// The JSON form of UIBuilder: one row per element of the description's list, then
// the dependencies between them, then alternatives folded into shared rows.
#include "ActiveConstraint.h"
#include "MaxValueConstraint.h"
#include "MinValueConstraint.h"
#include "UIBuilder.h"
#include "UIBuilderParams.h"
#include "VisibilityConstraint.h"
#include "controls/TextLabel.h"
#include "controls/VerticalScrollingBase.h"
#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "platform/JSON.h"
#include "value/DataConvert.h"

#include <cmath>
#include <limits>

using namespace GenericParam;

namespace {
// Truncates toward zero, holding numbers beyond the type's range at its ends.
template <class I>
I truncated(double d) {
    if (std::isnan(d)) return 0;
    if (d >= static_cast<double>(std::numeric_limits<I>::max())) return std::numeric_limits<I>::max();
    if (d <= static_cast<double>(std::numeric_limits<I>::min())) return std::numeric_limits<I>::min();
    return static_cast<I>(d);
}

const Zn::AttribValuePair noPair;

Zn::AttribValuePair visibleIfOf(const UIBuilder::ElementPtr& element) {
    return element ? Zn::AttribValuePair(element->getString("visible if"), '=') : noPair;
}

UIString legendOf(const UIBuilder::ElementPtr& element) { return UIString(element->getWString("legend")); }
} // namespace

ResId UIBuilder::getTooltip(const ElementPtr& element) {
    if (!element) return UIString::kNoResource;
    const double tooltip = element->getNumber("tooltip", -1.0);
    if (!(tooltip >= 0.0)) return UIString::kNoResource;
    return truncated<ResId>(tooltip);
}

unsigned UIBuilder::getNumParams(const ElementPtr& root) {
    if (!root || root->getNumChildren() != 1) return 0;
    ElementPtr list = root->getChild(static_cast<unsigned short>(0));
    return list ? list->getNumChildren() : 0;
}

Zn::Ptr<UIBuilder::Params> UIBuilder::buildFromJSON(const ElementPtr& root, StandardPanel* panel) {
    UIBuilder builder(root, panel);
    return builder.makeParams();
}

Zn::Ptr<UIBuilder::Params> UIBuilder::buildFromJSON(const LightweightString<wchar_t>& text, StandardPanel* panel) {
    return buildFromJSON(JSON::parse(text), panel);
}

UIBuilder::UIBuilder(const ElementPtr& root, StandardPanel* panel) : panel_(panel) {
    init();
    ElementPtr list = root && panel ? root->getChild(static_cast<unsigned short>(0)) : nullptr;
    if (!list) return;
    Drawable::disableRedraws();
    calcMaxLegendWidth(list);
    for (unsigned short i = 0; i < list->getNumChildren(); ++i) {
        const bool first = i == 0;
        makeRowForElement(list->getChild(i), first ? Glob::UserTopLeft(0, 0) : nextRowPosition(), first ? WidgetSurround() : nextRowSurround());
    }
    wireElements(list);
    foldAlternatives(list);
    enforceConstraints();
    endBuild();
}

Glob* UIBuilder::makeRowForElement(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    if (!element) return nullptr;
    const LightweightString<char> type = element->getString("type");
    if (type == "bool") return makeBoolParam(element, position, surround);
    if (type == "int") return element->getChild("values") ? makeChoiceParam(element, position, surround) : makeIntParam(element, position, surround);
    if (type == "text") return makeTextParam(element, position, surround);
    if (type == "float") return makeFloatParam(element, position, surround);
    if (type == "label") return makeLabelParam(element, position, surround);
    return makeHeading(element, position, surround);
}

// A heading: the legend on one line, with no parameter behind it.
Glob* UIBuilder::makeHeading(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    TextLabel::InitArgs args(legendOf(element), width_, static_cast<unsigned short>(UifStd::instance().getRowHeight()), Glib::FontDesc("", 0));
    if (scroller_) return scroller_->createManagedWidget<TextLabel>(args, surround);
    return panel_->createWidget<TextLabel>(args, position, surround);
}

Glob* UIBuilder::makeBoolParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    const bool value = element->getBool("default", false);
    Zn::Ptr<iParam> param(new BoolParam(legendOf(element), element->getString("name"), UIString(getTooltip(element)), value));
    return makeBoolWidget(param, position, surround);
}

Glob* UIBuilder::makeIntParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    const int min = truncated<int>(element->getNumber("min", -1.0));
    const int max = truncated<int>(element->getNumber("max", -1.0));
    const int value = truncated<int>(element->getNumber("default", -1.0));
    auto* param = new IntParam(value, element->getString("name"), legendOf(element), UIString(getTooltip(element)));
    Zn::Ptr<iParam> held(param);
    if (min != max) param->setRange(min, max);
    return makeIntWidget(held, position, surround);
}

Glob* UIBuilder::makeFloatParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    const double min = element->getNumber("min", -1.0);
    const double max = element->getNumber("max", -1.0);
    const double value = element->getNumber("default", -1.0);
    Zn::Ptr<iParam> param(new DoubleParam(legendOf(element), element->getString("name"), UIString(getTooltip(element)), value, min, max));
    return makeFloatWidget(param, position, surround);
}

Glob* UIBuilder::makeChoiceParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    ElementPtr values = element->getChild("values");
    std::vector<ChoiceParam::Choice> choices;
    for (const auto& entry : values->numericAttribs) choices.push_back({UIString(fromUTF8(entry.name)), truncated<int>(entry.value)});
    int value = choices.empty() ? -1 : choices.front().value;
    const LightweightString<char> choice = element->getString("choice");
    if (!choice.empty()) value = static_cast<int>(DataConvert::convert<LightweightString<wchar_t>, unsigned int>(fromUTF8(choice)));
    Zn::Ptr<iParam> param(new ChoiceParam(legendOf(element), element->getString("name"), UIString(getTooltip(element)), value, choices));
    return makeChoiceWidget(param, position, surround);
}

Glob* UIBuilder::makeTextParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    auto* param = new TextParam(element->getWString("value"), element->getString("name"), legendOf(element), UIString(getTooltip(element)));
    Zn::Ptr<iParam> held(param);
    param->hint = element->getWString("hint");
    param->obfuscated = element->getBool("obfuscated", false);
    param->advance = element->getBool("advance", false);
    return makeTextWidget(held, position, surround);
}

Glob* UIBuilder::makeLabelParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround) {
    const LightweightString<wchar_t> text = element->getWString("legend");
    Zn::Ptr<iParam> param(new LabelParam(text, element->getString("name"), UIString(text), UIString(getTooltip(element))));
    return makeLabelWidget(param, position, surround);
}

void UIBuilder::wireElements(const ElementPtr& list) {
    for (unsigned short i = 0; i < list->getNumChildren(); ++i) {
        ElementPtr element = list->getChild(i);
        const LightweightString<char> id = element->getString("name");
        Glob* row = widgetFor(id);
        if (!row) continue;
        const auto activeIf = Zn::AttribValuePair::vecFromString(element->getString("active if"), '=', ',');
        const Zn::AttribValuePair visibleIf = visibleIfOf(element);
        const LightweightString<char> lowerBound = element->getString("must not be lower than");
        const LightweightString<char> upperBound = element->getString("must not be higher than");
        if (!activeIf.empty()) addPostCondition(Zn::Ptr<iPostCondition>(new ActiveConstraint(activeIf, row)));
        if (visibleIf.valid())
            if (Zn::Ptr<iParam> watched = findParam(visibleIf.name()))
                watched->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new VisibilityConstraint(row, fromUTF8(visibleIf.value()))));
        Zn::Ptr<iParam> own = findParam(id);
        if (!own) continue;
        // A bound naming no parameter lets every value pass.
        if (!lowerBound.empty()) own->addValueConstraint(Zn::Ptr<iValueConstraint>(new MinValueConstraint(findParam(lowerBound))));
        if (!upperBound.empty()) own->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(findParam(upperBound))));
    }
}

// Consecutive elements shown on different values of one parameter share the row of
// the first: each later member hangs from the row above the group. The panel loses
// the distance from each member to the first, so a group of three gives up three
// rows of height, not two; descriptions are sized for that.
void UIBuilder::foldAlternatives(const ElementPtr& list) {
    const auto n = static_cast<int>(list->getNumChildren());
    int rows = static_cast<int>(widgets_.size());
    for (int i = 1; i < n; ++i) {
        const Zn::AttribValuePair pair = visibleIfOf(list->getChild(static_cast<unsigned short>(i)));
        if (!pair.valid()) continue;
        int k = i - 1;
        for (; k >= 0; --k) {
            const Zn::AttribValuePair before = visibleIfOf(list->getChild(static_cast<unsigned short>(k)));
            if (!before.valid() || before.name() != pair.name() || before.value() == pair.value()) break;
        }
        if (k < 0 || k == i - 1) continue;
        Glob* member = widgetFor(list->getChild(static_cast<unsigned short>(i))->getString("name"));
        Glob* above = widgetFor(list->getChild(static_cast<unsigned short>(k))->getString("name"));
        if (member && above && member->parent()) {
            WidgetDetails details = member->parent()->getWidget(member);
            details.sibling = above;
            member->parent()->setWidgetDetails(details);
        }
        rows = rows - i + k + 1;
    }
    const int lost = static_cast<int>(widgets_.size()) - rows;
    if (lost != 0 && panel_) {
        const UifStd& std = UifStd::instance();
        panel_->resize(panel_->width(), panel_->height() - lost * (std.getRowHeight() + std.getRowGap()));
    }
}
