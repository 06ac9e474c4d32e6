#pragma once

#include "GenericParam.h"
#include "core/LightweightVector.h"
#include "glob/Drawable.h"
#include "glob/WidgetPosition.h"
#include "glob/WidgetSurround.h"
#include "platform/JSONElement.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <vector>

class Glob;
class NumericTextBox;
class Slider;
class StandardPanel;
class TabOrderable;
class VerticalScrollingBase;

/// Turns parameters into rows of widgets in a panel: one row per parameter, its
/// control bound to the parameter's value, all controls lined up right of a legend
/// column as wide as the widest legend. A panel is described by a list of parameters
/// (build) or by JSON (buildFromJSON). A builder lives only for the call that builds
/// a panel; what stays is the widgets, which the panel owns, and a UIBuilder::Params,
/// the live parameters of the panel, which the caller keeps.
///
/// Rows of a VerticalScrollingBase are stacked by it; in any other panel each row is
/// placed below the one before it. Bad input builds less, never fails.
class UIBuilder {
public:
    using ParamList = LightweightVector<Zn::Ptr<GenericParam::iParam>>;
    using WidgetMap = std::map<LightweightString<char>, Glob*>;
    using ElementPtr = Zn::Ptr<JSON::Element>;

    // A condition that depends on several parameters, evaluated after every change
    // of any parameter of the panel.
    class iPostCondition : public iObject {
    public:
        virtual void evaluate(const ParamList& params) = 0;
    };
    class Params;

    UIBuilder() = default;
    UIBuilder(StandardPanel* panel, unsigned short legendWidth);
    // Builds a row for a clone of each parameter, so the caller's keep their values.
    UIBuilder(const ParamList& params, StandardPanel* panel);
    // Builds a row for each element of the description's list.
    UIBuilder(const ElementPtr& root, StandardPanel* panel);
    // The parameter list shares its storage when copied: two builders would fill one list.
    UIBuilder(const UIBuilder&) = delete;
    UIBuilder& operator=(const UIBuilder&) = delete;

    static Zn::Ptr<Params> build(const ParamList& params, StandardPanel* panel);
    // Text that is no JSON, or a null panel, gives a set with no parameters.
    static Zn::Ptr<Params> buildFromJSON(const ElementPtr& root, StandardPanel* panel);
    static Zn::Ptr<Params> buildFromJSON(const LightweightString<wchar_t>& text, StandardPanel* panel);
    // The number of rows a description asks for, to size a panel before building it:
    // 0 unless the root has exactly one child.
    static unsigned getNumParams(const ElementPtr& root);
    // The element's "tooltip" as a resource id, or UIString::kNoResource for none.
    static ResId getTooltip(const ElementPtr& element);
    // One row on its own, `width` wide; a legendWidth of 0 measures this one legend.
    // Null for a parameter of no known class.
    static Glob* createWidget(const Zn::Ptr<GenericParam::iParam>& param, StandardPanel* panel, unsigned short width, unsigned short legendWidth,
                              const WidgetPosition& position, const WidgetSurround& surround);

    // Reads the panel's row width; a builder without a panel stays empty.
    void init();
    Glob* createWidgetForParam(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    void calcMaxLegendWidth(const ParamList& params);
    void calcMaxLegendWidth(const ElementPtr& list);

    // The first parameter made so far whose id is this text, or null.
    Zn::Ptr<GenericParam::iParam> findParam(const LightweightString<char>& id) const;
    unsigned short getWidth() const { return width_; }
    void setWidth(unsigned short width) { width_ = width; }
    unsigned short getLegendWidth() const { return legendWidth_; }

    // The row makers; each returns the row and records it.
    Glob* makeLabelWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeBoolWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeChoiceWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeFontWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeColourWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeFileWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeFloatWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeIntWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeActionWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeTextWidget(const Zn::Ptr<GenericParam::iParam>& param, const WidgetPosition& position, const WidgetSurround& surround);

    // The makers of the JSON form: each reads its keys, makes the parameter and its row.
    Glob* makeBoolParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeIntParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeChoiceParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeTextParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeFloatParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeLabelParam(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);

    // What a slider row needs of its parameter, whichever number type it holds.
    struct SliderRow {
        double min = 0, max = 0, current = 0, pointOfInterest = 0;
        bool isFloat = false;
        std::function<void(Slider*, NumericTextBox*)> bind;
    };

    // Whether actions go on the panel's menu instead of on buttons: the configuration
    // key "action_params_on_menu", read once at load; a program or test may change it.
    static bool actionParamsOnMenu();
    static void setActionParamsOnMenu(bool onMenu);

    // Where every row but the first goes, and how it is set off from the one above.
    static WidgetPosition nextRowPosition();
    static WidgetSurround nextRowSurround();

protected:
    // Records a finished row: its parameter joins the list in row order, and the row
    // can be found by the parameter's id; a row without a name takes the id as its
    // name, for GlobManager::find. A second row for an id leaves the first.
    void recordRow(const Zn::Ptr<GenericParam::iParam>& param, Glob* row);
    void addPostCondition(const Zn::Ptr<iPostCondition>& condition);
    // Hands the parameters, rows and post-conditions to the set that outlives the builder.
    Zn::Ptr<Params> makeParams() const;

private:
    template <class T>
    T* createRow(typename T::InitArgs& args, const WidgetPosition& position, const WidgetSurround& surround);
    // What every maker does last: tooltip, activity, record and tab stops (null ones skipped).
    void finishRow(const Zn::Ptr<GenericParam::iParam>& param, Glob* row, eRedrawFlag activeFlag, std::initializer_list<TabOrderable*> stops = {});
    Glob* makeSliderRow(const Zn::Ptr<GenericParam::iParam>& param, const SliderRow& row, const WidgetPosition& position,
                        const WidgetSurround& surround);
    Glob* makeHeading(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* makeRowForElement(const ElementPtr& element, const WidgetPosition& position, const WidgetSurround& surround);
    Glob* widgetFor(const LightweightString<char>& id) const;
    void wireParams(const ParamList& params);
    void wireElements(const ElementPtr& list);
    void foldAlternatives(const ElementPtr& list);
    void enforceConstraints();
    void endBuild();

    StandardPanel* panel_ = nullptr;
    VerticalScrollingBase* scroller_ = nullptr;
    ParamList params_;
    unsigned short width_ = 0;
    unsigned short legendWidth_ = 0;
    WidgetMap widgets_;
    // The first parameter of each id, for wiring without a search per bound.
    std::map<LightweightString<char>, Zn::Ptr<GenericParam::iParam>> paramsById_;
    std::vector<Zn::Ptr<iPostCondition>> postConditions_;
};
