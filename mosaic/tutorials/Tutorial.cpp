#include "Tutorial.h"

#include "platform/JSON.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"

#include <algorithm>

namespace {

constexpr unsigned kModifierOrder[] = {Modifiers::Shift, Modifiers::Control, Modifiers::Cmd, Modifiers::Alt};

// The first numeric attribute of that name, as the file's single-precision number.
bool numberOf(const JSON::Element& e, const char* name, double& out) {
    for (const auto& attribute : e.numericAttribs) {
        if (attribute.name == name) {
            out = static_cast<double>(static_cast<float>(attribute.value));
            return true;
        }
    }
    return false;
}

double numberOr(const JSON::Element& e, const char* name, double fallback) {
    double v = fallback;
    numberOf(e, name, v);
    return v;
}

void addNumber(JSON::Builder& b, const char* key, double v) { b.add(key, static_cast<float>(v)); }

} // namespace

// ---- Pointer ----------------------------------------------------------------

LightweightString<wchar_t> Tutorial::Pointer::getDisplayString() const { return target.empty() ? LightweightString<wchar_t>(L",") : target; }

void Tutorial::Pointer::write(JSON::Builder& b) const {
    if (x != Glob::kUnset) {
        addNumber(b, "x", x);
        addNumber(b, "y", y);
    } else if (!target.empty()) {
        b.add("target", target, true);
    }
}

int Tutorial::Pointer::read(const Zn::Ptr<JSON::Element>& e) {
    target = e->getWString("target");
    if (!target.empty()) return 1;
    x = numberOr(*e, "x", Glob::kUnset);
    y = numberOr(*e, "y", Glob::kUnset);
    return 1;
}

// ---- Message ----------------------------------------------------------------

void Tutorial::Message::write(JSON::Builder& b) const {
    if (target.empty()) {
        b.add("origin", ::asString(origin), true);
    } else {
        b.add("target", target, true);
        b.add("relativity", ::asString(relativity), true);
    }
    b.add("text", text, true);
}

int Tutorial::Message::read(const Zn::Ptr<JSON::Element>& e) {
    // A message with no text of its own keeps the one its phase gave it.
    if (LightweightString<wchar_t> own = e->getWString("text"); !own.empty()) text = own;
    if (e->hasString("origin")) {
        origin = CoordinateOriginFromString(e->getString("origin"));
        return 1;
    }
    relativity = WidgetRelativityFromString(e->getString("relativity"));
    target = e->getWString("target");
    return 1;
}

// ---- Action -----------------------------------------------------------------

LightweightString<char> Tutorial::Action::asString(unsigned int bit) {
    switch (bit) {
    case Modifiers::Shift: return "shift";
    case Modifiers::Control: return "ctrl";
    case Modifiers::Cmd: return "cmd";
    case Modifiers::Alt: return "alt";
    default: return {};
    }
}

void Tutorial::Action::write(JSON::Builder& b) const {
    if (!valid()) return;
    b.add("event", event, true);
    if (modifiers == 0) return;
    b.startArray("modifiers");
    for (unsigned bit : kModifierOrder)
        if (modifiers & bit) b.add("", asString(bit), true);
    b.endArray();
}

int Tutorial::Action::read(const Zn::Ptr<JSON::Element>& e) {
    event = e->getString("event");
    Zn::Ptr<JSON::Element> list = e->getChild("modifiers");
    if (!list) return 1;
    for (unsigned short i = 0; i < list->getNumStringAttribs(); ++i) {
        LightweightString<char> name = list->getString(i);
        for (unsigned bit : kModifierOrder)
            if (name == asString(bit)) modifiers |= bit;
    }
    return 1;
}

// ---- Phase ------------------------------------------------------------------

void Tutorial::Phase::write(JSON::Builder& b) const {
    if (pause != 0.0f) b.add("pause", pause);
    auto child = [&b](const char* key, const JSON::iPersistable& part) {
        b.startChild(key);
        part.write(b);
        b.endChild();
    };
    if (pointer.valid()) child("pointer", pointer);
    if (message.valid()) child("message", message);
    if (action.valid()) child("action", action);
}

int Tutorial::Phase::read(const Zn::Ptr<JSON::Element>& e) {
    Zn::Ptr<JSON::Element> p = e->getChild("pointer"), m = e->getChild("message"), a = e->getChild("action");
    message.text = e->getWString("text");
    pause = static_cast<float>(numberOr(*e, "pause", 0.0));
    if (p) pointer.read(p);
    if (m) message.read(m);
    if (a) action.read(a);
    return 1;
}

// ---- Tutorial ---------------------------------------------------------------

Tutorial::Tutorial(const LightweightString<wchar_t>& path) { load(path); }

Tutorial::Tutorial(const Tutorial& other)
    : Zn::InternalRefCount(), JSON::iPersistable(), name_(other.name_), category_(other.category_), path_(other.path_),
      components_(other.getComponents()) {
    for (const Zn::Ptr<Phase>& p : other.phases_) phases_.push_back(Zn::Ptr<Phase>(new Phase(*p)));
}

Zn::Ptr<Tutorial> Tutorial::listed(const LightweightString<wchar_t>& path) {
    Zn::Ptr<Tutorial> t(new Tutorial);
    t->path_ = path;
    if (Zn::Ptr<JSON::Element> top = JSON::parseFileTop(path)) {
        t->name_ = top->getWString("name");
        t->category_ = top->getWString("category");
        t->bodyPending_ = true;
    }
    return t;
}

void Tutorial::ensureBody() const {
    if (!bodyPending_) return;
    bodyPending_ = false;
    if (Zn::Ptr<JSON::Element> root = JSON::parseFile(path_)) readBody(*root);
}

void Tutorial::load(const LightweightString<wchar_t>& path) {
    ensureBody();
    path_ = path;
    if (Zn::Ptr<JSON::Element> root = JSON::parseFile(path)) read(root);
}

void Tutorial::save(const LightweightString<wchar_t>& path) {
    // Written whole: a listed tutorial reads the rest of itself before its path changes.
    ensureBody();
    if (&path != &path_) path_ = path;
    TextFile file(path_, false);
    JSON::Builder builder(2);
    write(builder);
    builder.printTo(file, 3, 0);
    file.save(LightweightString<wchar_t>(), TextFile::kLF);
}

void Tutorial::write(JSON::Builder& b) const {
    ensureBody();
    b.startChild(nullptr);
    b.add("name", name_, true);
    b.add("category", category_, true);
    b.startArray("components");
    for (const UIComponent& c : components_) {
        b.startChild(nullptr);
        b.add("type", c.type, true);
        addNumber(b, "width", c.size.x);
        addNumber(b, "height", c.size.y);
        addNumber(b, "x", c.position.x);
        addNumber(b, "y", c.position.y);
        b.endChild();
    }
    b.endArray();
    b.startArray("phases");
    for (const Zn::Ptr<Phase>& p : phases_) {
        b.startChild(nullptr);
        p->write(b);
        b.endChild();
    }
    b.endArray();
    b.endChild();
}

int Tutorial::read(const Zn::Ptr<JSON::Element>& e) {
    ensureBody();
    name_ = e->getWString("name");
    category_ = e->getWString("category");
    readBody(*e);
    return 1;
}

void Tutorial::readBody(const JSON::Element& e) const {
    Zn::Ptr<JSON::Element> phases = e.getChild("phases"), components = e.getChild("components");
    for (unsigned short i = 0; components && i < components->getNumChildren(); ++i) {
        Zn::Ptr<JSON::Element> c = components->getChild(i);
        UIComponent u;
        u.type = c->getString("type");
        u.position = {numberOr(*c, "x", 0.0), numberOr(*c, "y", 0.0)};
        u.size = {numberOr(*c, "width", 0.0), numberOr(*c, "height", 0.0)};
        u.initialPosition = u.position;
        components_.push_back(u);
    }
    for (unsigned short i = 0; phases && i < phases->getNumChildren(); ++i) {
        Zn::Ptr<Phase> phase(new Phase);
        phases_.push_back(phase);
        phase->read(phases->getChild(i));
    }
}

LightweightString<wchar_t> Tutorial::getID() const { return stripPath(path_); }

Zn::Ptr<Tutorial::Phase> Tutorial::getPhase(unsigned short index) {
    ensureBody();
    return index < phases_.size() ? phases_[index] : Zn::Ptr<Phase>();
}

Zn::Ptr<const Tutorial::Phase> Tutorial::getPhase(unsigned short index) const {
    ensureBody();
    return index < phases_.size() ? Zn::Ptr<const Phase>(phases_[index]) : Zn::Ptr<const Phase>();
}

void Tutorial::addPhase(const Zn::Ptr<Phase>& phase) {
    ensureBody();
    if (phase) phases_.push_back(phase);
}

void Tutorial::removePhase(const Zn::Ptr<Phase>& phase) {
    ensureBody();
    auto it = std::find(phases_.begin(), phases_.end(), phase);
    if (phase && it != phases_.end()) phases_.erase(it);
}

XY<double> Tutorial::getComponentPosition(const LightweightString<char>& type, float) const {
    XY<double> found;
    for (const UIComponent& c : getComponents())
        if (c.type == type) found = c.position;
    return found;
}
