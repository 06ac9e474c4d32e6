#include "UIBuilder.h"

#include "ActiveConstraint.h"
#include "MaxValueConstraint.h"
#include "MinValueConstraint.h"
#include "UIBuilderParams.h"
#include "VisibilityConstraint.h"
#include "controls/Button.h"
#include "controls/DropDownMenuButton.h"
#include "controls/VerticalScrollingBase.h"
#include "core/MethodCallback.h"
#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "platform/Configuration.h"

#include "TitledGlob.h"

using GenericParam::ActionParam;
using GenericParam::iParam;
using GenericParam::ParamBase;

namespace {
bool actionsOnMenu = config_int("action_params_on_menu", 0) != 0;

ParamBase* baseOf(const Zn::Ptr<iParam>& param) { return dynamic_cast<ParamBase*>(param.get()); }
} // namespace

UIBuilder::UIBuilder(StandardPanel* panel, unsigned short legendWidth) : panel_(panel), legendWidth_(legendWidth) { init(); }

void UIBuilder::init() {
    scroller_ = dynamic_cast<VerticalScrollingBase*>(panel_);
    width_ = panel_ ? static_cast<unsigned short>(panel_->getUserArea().width()) : 0;
}

bool UIBuilder::actionParamsOnMenu() { return actionsOnMenu; }

void UIBuilder::setActionParamsOnMenu(bool onMenu) { actionsOnMenu = onMenu; }

WidgetPosition UIBuilder::nextRowPosition() { return Glob::Below(UifStd::instance().getRowGap(), nullptr, kAlignStart); }

WidgetSurround UIBuilder::nextRowSurround() { return WidgetSurround(2, 1, 0, 0, 0.2f, true); }

UIBuilder::UIBuilder(const ParamList& params, StandardPanel* panel) : panel_(panel) {
    Drawable::disableRedraws();
    init();
    calcMaxLegendWidth(params);
    if (panel_) {
        for (std::size_t i = 0; i < params.size(); ++i) {
            const Zn::Ptr<iParam>& source = params[i];
            if (!source) continue;
            const bool first = i == 0;
            const WidgetPosition position = first ? Glob::UserTopLeft(0, 0) : nextRowPosition();
            const WidgetSurround surround = first ? WidgetSurround() : nextRowSurround();
            const Zn::Ptr<iParam> clone = source->clone();
            using namespace GenericParam;
            // FontParam, FileParam and ColourParam rows are made only by createWidgetForParam.
            if (Zn::dynamicCast<DoubleParam>(clone))
                makeFloatWidget(clone, position, surround);
            else if (Zn::dynamicCast<BoolParam>(clone))
                makeBoolWidget(clone, position, surround);
            else if (Zn::dynamicCast<TextParam>(clone))
                makeTextWidget(clone, position, surround);
            else if (Zn::dynamicCast<ChoiceParam>(clone))
                makeChoiceWidget(clone, position, surround);
            else if (Zn::dynamicCast<LabelParam>(clone))
                makeLabelWidget(clone, position, surround);
            else if (Zn::dynamicCast<IntParam>(clone))
                makeIntWidget(clone, position, surround);
            else if (Zn::dynamicCast<ActionParam>(clone))
                makeActionWidget(clone, position, surround);
        }
        wireParams(params);
        enforceConstraints();
        for (const auto& condition : postConditions_) condition->evaluate(params_);
    }
    endBuild();
}

// Rows are not painted one by one as they are made: what they asked for is dropped,
// and a panel already on the screen is painted once, whole. What other globs asked
// for stands.
void UIBuilder::endBuild() {
    Drawable::clearPendingRedraws([this](const Drawable& d) {
        const auto* g = dynamic_cast<const Glob*>(&d);
        return g && (g == panel_ || isParentedTo(g, panel_));
    });
    Drawable::enableRedraws();
    if (panel_ && GlobManager::instance().isRealized(getRootParent(panel_))) panel_->redraw();
}

// Dependencies are read from the caller's parameters; they act on the clones.
void UIBuilder::wireParams(const ParamList& params) {
    for (const auto& source : params) {
        const ParamBase* own = baseOf(source);
        if (!own) continue;
        const LightweightString<char> id = own->getID();
        if (!own->getActiveIf().empty())
            if (Glob* row = widgetFor(id)) addPostCondition(Zn::Ptr<iPostCondition>(new ActiveConstraint(own->getActiveIf(), row)));
        const Zn::AttribValuePair& visibleIf = own->getVisibleIf();
        if (!visibleIf.name().empty() || !visibleIf.value().empty())
            if (Zn::Ptr<iParam> watched = findParam(visibleIf.name()))
                watched->addChangeHandler(
                    Zn::Ptr<GenericParam::iValueChangeHandler>(new VisibilityConstraint(widgetFor(id), fromUTF8(visibleIf.value()))));
        Zn::Ptr<iParam> clone = findParam(id);
        if (!clone) continue;
        if (!own->getGreaterThan().empty())
            if (Zn::Ptr<iParam> bound = findParam(own->getGreaterThan()))
                clone->addValueConstraint(Zn::Ptr<GenericParam::iValueConstraint>(new MinValueConstraint(bound)));
        if (!own->getLessThan().empty())
            if (Zn::Ptr<iParam> bound = findParam(own->getLessThan()))
                clone->addValueConstraint(Zn::Ptr<GenericParam::iValueConstraint>(new MaxValueConstraint(bound)));
    }
}

void UIBuilder::enforceConstraints() {
    for (std::size_t i = 0; i < params_.size(); ++i) params_[i]->enforceConstraints();
}

Zn::Ptr<UIBuilder::Params> UIBuilder::build(const ParamList& params, StandardPanel* panel) {
    UIBuilder builder(params, panel);
    Zn::Ptr<Params> set = builder.makeParams();
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> runAction(new MethodCallback<Params, NotifyMsg, int>(set.get(), &Params::handleActionParam));
    for (const auto& source : params) {
        if (!source || source->getValueType() != "action") continue;
        Glob* row = builder.widgetFor(source->getID());
        Zn::Ptr<ActionParam> action = Zn::dynamicCast<ActionParam>(builder.findParam(source->getID()));
        if (!row || !action) continue;
        const WidgetCallback callback(runAction, LightweightString<char>(), action);
        if (actionsOnMenu) {
            if (panel) panel->addMenuItem(MenuItem(action->getLegend(), callback, kMenuItemCommand), row->isActive());
        } else if (auto* titled = dynamic_cast<TitledGlob<Button>*>(row)) {
            titled->control()->setCallback(callback);
        }
    }
    return set;
}

Glob* UIBuilder::createWidget(const Zn::Ptr<iParam>& param, StandardPanel* panel, unsigned short width, unsigned short legendWidth,
                              const WidgetPosition& position, const WidgetSurround& surround) {
    UIBuilder builder(panel, legendWidth);
    builder.setWidth(width);
    return panel ? builder.createWidgetForParam(param, position, surround) : nullptr;
}

Glob* UIBuilder::createWidgetForParam(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    if (!param || !panel_) return nullptr;
    if (legendWidth_ == 0) {
        ParamList one;
        one.push_back(param);
        calcMaxLegendWidth(one);
    }
    using namespace GenericParam;
    if (Zn::dynamicCast<DoubleParam>(param)) return makeFloatWidget(param, position, surround);
    if (Zn::dynamicCast<BoolParam>(param)) return makeBoolWidget(param, position, surround);
    if (Zn::dynamicCast<TextParam>(param)) return makeTextWidget(param, position, surround);
    if (Zn::dynamicCast<ChoiceParam>(param)) return makeChoiceWidget(param, position, surround);
    if (Zn::dynamicCast<LabelParam>(param)) return makeLabelWidget(param, position, surround);
    if (Zn::dynamicCast<IntParam>(param)) return makeIntWidget(param, position, surround);
    if (Zn::dynamicCast<ActionParam>(param)) return makeActionWidget(param, position, surround);
    if (Zn::dynamicCast<FontParam>(param)) return makeFontWidget(param, position, surround);
    if (Zn::dynamicCast<FileParam>(param)) return makeFileWidget(param, position, surround);
    if (Zn::dynamicCast<ColourParam>(param)) return makeColourWidget(param, position, surround);
    return nullptr;
}

namespace {
// The measure of the toolkit's drop-down, margins and arrow included, less three
// gaps: what is left is the legend column that lines the controls up.
unsigned short legendColumnFor(const std::vector<UIString>& legends) {
    const Glib::FontDesc font(getDefaultFontName(0), getDefaultFontSize(), 0);
    const int width = DropDownMenuButton::calcWidth(legends, font) - 3 * UifStd::instance().getWidgetGap();
    return static_cast<unsigned short>(std::max(0, width));
}
} // namespace

void UIBuilder::calcMaxLegendWidth(const ParamList& params) {
    std::vector<UIString> legends;
    for (const auto& param : params)
        if (param && param->getValueType() != "action") legends.emplace_back(param->getLegend().getString());
    legendWidth_ = legendColumnFor(legends);
}

void UIBuilder::calcMaxLegendWidth(const ElementPtr& list) {
    std::vector<UIString> legends;
    for (unsigned short i = 0; list && i < list->getNumChildren(); ++i)
        if (ElementPtr element = list->getChild(i)) legends.emplace_back(element->getWString("legend"));
    legendWidth_ = legendColumnFor(legends);
}

Zn::Ptr<iParam> UIBuilder::findParam(const LightweightString<char>& id) const {
    auto it = paramsById_.find(id);
    return it == paramsById_.end() ? nullptr : it->second;
}

Glob* UIBuilder::widgetFor(const LightweightString<char>& id) const {
    auto it = widgets_.find(id);
    return it == widgets_.end() ? nullptr : it->second;
}

void UIBuilder::recordRow(const Zn::Ptr<iParam>& param, Glob* row) {
    if (!param) return;
    params_.push_back(param);
    paramsById_.emplace(param->getID(), param);
    widgets_.emplace(param->getID(), row);
    if (is_good_glob_ptr(row) && row->name().empty()) row->setName(param->getID());
}

void UIBuilder::addPostCondition(const Zn::Ptr<iPostCondition>& condition) {
    if (condition) postConditions_.push_back(condition);
}

Zn::Ptr<UIBuilder::Params> UIBuilder::makeParams() const { return Zn::makePtr<Params>(params_, widgets_, postConditions_); }
