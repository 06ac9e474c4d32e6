#include "CompressionSettingsPanel.h"

#include "draw/UifStd.h"
#include "media/Compression.h"
#include "params/DoubleParam.h"
#include "params/IntParam.h"
#include "params/UIBuilder.h"

namespace {
const Border kPanelBorder(Border::kDropMenuBorder, 0, 15);
} // namespace

CompressionSettingsPanel::InitArgs::InitArgs(const UIBuilder::ParamList& p, configb& s, unsigned short width) : InitArgs(p, &s, width) {}

CompressionSettingsPanel::InitArgs::InitArgs(const UIBuilder::ParamList& p, configb* s, unsigned short width) : params(p), state(s) {
    const UifStd& u = UifStd::instance();
    const auto rows = static_cast<unsigned short>(p.size());
    const int height = rows == 0 ? 0 : rows * u.getRowHeight() + (rows - 1) * u.getRowGap();
    const XY<int> size = StandardPanel::calcPanelSize(XY<int>(width, height), 0, kPanelBorder);
    this->width = size.x;
    this->height = size.y;
    border = kPanelBorder;
}

CompressionSettingsPanel::CompressionSettingsPanel(const InitArgs& args) : StandardPanel(args), state_(args.state) {
    setBorderStyle(Border::kDropMenuBorder);
    params_ = UIBuilder::build(args.params, this);
    if (state_) params_->restoreState(*state_);
}

CompressionSettingsPanel::~CompressionSettingsPanel() {
    if (state_ && params_) params_->saveState(*state_);
}

UIBuilder::ParamList CompressionSettingsPanel::makeParams(Zn::Image::Format code) {
    using namespace GenericParam;
    UIBuilder::ParamList params;
    for (const Compression::Setting& s : Compression::getSettings(code)) {
        if (s.whole) {
            auto* p = new IntParam(static_cast<int>(s.defaultValue), s.id, s.legend, UIString());
            p->setRange(static_cast<int>(s.min), static_cast<int>(s.max));
            params.push_back(Zn::Ptr<iParam>(p));
        } else {
            params.push_back(Zn::Ptr<iParam>(new DoubleParam(s.legend, s.id, UIString(), s.defaultValue, s.min, s.max)));
        }
    }
    return params;
}
