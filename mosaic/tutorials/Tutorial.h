#pragma once

#include "core/KeyCodes.h"
#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "core/XY.h"
#include "glob/Glob.h"
#include "glob/WidgetPosition.h"
#include "platform/iPersistable.h"

#include <vector>

/// A tutorial document: phases that say where a pointer goes on the screen, what
/// message is shown and which user action ends the phase, and the layout of the
/// interface it was made on. It reads and writes itself as one JSON file. Reading
/// and writing are deliberately not mirror images (see the parts' read and write).
/// The player that runs a tutorial belongs to the application.
class Tutorial : public JSON::iPersistable {
public:
    /// A part of the interface the tutorial was made on: its kind, place and size.
    struct UIComponent {
        LightweightString<char> type;
        XY<double> position;
        XY<double> initialPosition; // a copy of position made on reading; never written
        XY<double> size;
    };

    /// Where the pointer goes: a position, or a named component. Coordinates win
    /// over a target when written; a target wins when read. A coordinate of
    /// Glob::kUnset is none.
    class Pointer : public JSON::iPersistable {
    public:
        double x = Glob::kUnset, y = Glob::kUnset;
        LightweightString<wchar_t> target;

        bool valid() const { return x != Glob::kUnset || !target.empty(); }
        // The target, or a single comma when there is none.
        LightweightString<wchar_t> getDisplayString() const;
        void write(JSON::Builder& b) const override;
        int read(const Zn::Ptr<JSON::Element>& e) override;
    };

    // What is said: beside a target on a side, or at a place on the screen.
    class Message : public JSON::iPersistable {
    public:
        LightweightString<wchar_t> text;
        eCoordinateOrigin origin = kSiblingRelative;
        LightweightString<wchar_t> target;
        eWidgetRelativity relativity = kBelow;

        bool valid() const { return !text.empty(); }
        void write(JSON::Builder& b) const override;
        int read(const Zn::Ptr<JSON::Element>& e) override;
    };

    // What the phase waits for: an event's name and the modifier keys held.
    class Action : public JSON::iPersistable {
    public:
        LightweightString<char> event;
        // Bits of Modifiers, as key codes carry them.
        unsigned modifiers = 0;

        bool valid() const { return !event.empty(); }
        // The file's name of one modifier bit; empty for anything else.
        static LightweightString<char> asString(unsigned int bit);
        void write(JSON::Builder& b) const override;
        int read(const Zn::Ptr<JSON::Element>& e) override;
    };

    /// One step of a tutorial: where the pointer goes, the message shown, the action
    /// that ends the step, and the pause that goes with it.
    class Phase : public JSON::iPersistable {
    public:
        Pointer pointer;
        Message message;
        Action action;
        float pause = 0.0f;

        void write(JSON::Builder& b) const override;
        int read(const Zn::Ptr<JSON::Element>& e) override;
    };

    Tutorial() = default;
    // An empty document, then load(path).
    explicit Tutorial(const LightweightString<wchar_t>& path);
    // Copies everything but shares no phase with the source.
    Tutorial(const Tutorial& other);
    Tutorial& operator=(const Tutorial&) = delete;

    // The name and category of a file now, and the rest when first asked for: a
    // catalogue lists a folder without building every tutorial in it. A file that does
    // not parse gives an empty document with its path.
    static Zn::Ptr<Tutorial> listed(const LightweightString<wchar_t>& path);
    // Reads the file; a file that does not parse leaves the document as it was, with the path set.
    void load(const LightweightString<wchar_t>& path);
    // Writes the file through a temporary file renamed over the old one.
    void save(const LightweightString<wchar_t>& path);
    void write(JSON::Builder& b) const override;
    // Appends what the element holds: reading twice appends twice.
    int read(const Zn::Ptr<JSON::Element>& e) override;

    // The file name without its folder.
    LightweightString<wchar_t> getID() const;
    const LightweightString<wchar_t>& getPath() const { return path_; }
    const LightweightString<wchar_t>& getName() const { return name_; }
    void setName(const LightweightString<wchar_t>& n) { name_ = n; }
    const LightweightString<wchar_t>& getCategory() const { return category_; }
    void setCategory(const LightweightString<wchar_t>& c) { category_ = c; }

    std::size_t getNumPhases() const {
        ensureBody();
        return phases_.size();
    }
    Zn::Ptr<Phase> getPhase(unsigned short index);
    Zn::Ptr<const Phase> getPhase(unsigned short index) const;
    void addPhase(const Zn::Ptr<Phase>& phase);
    // Removes the first entry that is this very object; a copy removes nothing.
    void removePhase(const Zn::Ptr<Phase>& phase);

    const std::vector<UIComponent>& getComponents() const {
        ensureBody();
        return components_;
    }
    void addComponent(const UIComponent& c) {
        ensureBody();
        components_.push_back(c);
    }
    // The position of the last component of that type; (0, 0) when there is none.
    XY<double> getComponentPosition(const LightweightString<char>& type, float unused = 0.0f) const;

private:
    // Reads the phases and components of a listed tutorial from its file, once.
    void ensureBody() const;
    void readBody(const JSON::Element& e) const;

    // The body is filled in on first use, from const accessors too.
    mutable bool bodyPending_ = false;
    mutable std::vector<Zn::Ptr<Phase>> phases_;
    LightweightString<wchar_t> name_;
    LightweightString<wchar_t> category_;
    LightweightString<wchar_t> path_;
    mutable std::vector<UIComponent> components_;
};
