#pragma once

#include <atomic>
#include <cstddef>
#include <cstring>
#include <cwchar>
#include <ostream>
#include <string>
#include <string_view>

/// The toolkit's string, for char (UTF-8 where it carries text) and wchar_t.
/// Copies share one record; a write to a record with more than one owner copies it
/// first. A string with no record is the empty string.
template <class C>
class LightweightString {
public:
    using value_type = C;
    using size_type = std::size_t;
    using view_type = std::basic_string_view<C>;
    static constexpr size_type npos = static_cast<size_type>(-1);

    LightweightString() noexcept = default;
    LightweightString(const C* s) { assign(s ? view_type(s) : view_type()); }
    LightweightString(const C* s, size_type n) { assign(view_type(s, s ? n : 0)); }
    LightweightString(size_type n, C c) {
        if (n) rep_ = new Rep(std::basic_string<C>(n, c));
    }
    LightweightString(view_type v) { assign(v); }
    LightweightString(const std::basic_string<C>& s) { assign(view_type(s)); }
    LightweightString(const LightweightString& o) noexcept : rep_(o.rep_) { retain(); }
    LightweightString(LightweightString&& o) noexcept : rep_(o.rep_) { o.rep_ = nullptr; }
    ~LightweightString() { drop(); }

    LightweightString& operator=(LightweightString o) noexcept {
        std::swap(rep_, o.rep_);
        return *this;
    }
    LightweightString& operator=(const C* s) { return *this = LightweightString(s); }

    // Reading.
    bool empty() const noexcept { return size() == 0; }
    bool isNull() const noexcept { return rep_ == nullptr; }
    size_type size() const noexcept { return rep_ ? rep_->str.size() : 0; }
    size_type length() const noexcept { return size(); }
    size_type capacity() const noexcept { return rep_ ? rep_->str.capacity() : 0; }
    const C* c_str() const noexcept { return rep_ ? rep_->str.c_str() : emptyText(); }
    const C* data() const noexcept { return c_str(); }
    view_type view() const noexcept { return rep_ ? view_type(rep_->str) : view_type(); }
    operator view_type() const noexcept { return view(); }
    std::basic_string<C> str() const { return std::basic_string<C>(view()); }
    // Reading past the end gives the null character, as at the end of a C string.
    C operator[](size_type i) const noexcept { return i < size() ? rep_->str[i] : C(); }
    C front() const noexcept { return (*this)[0]; }
    C back() const noexcept { return empty() ? C() : rep_->str.back(); }
    const C* begin() const noexcept { return c_str(); }
    const C* end() const noexcept { return c_str() + size(); }
    // True when both strings share one record: copies do until one of them is written.
    bool sharesStorageWith(const LightweightString& o) const noexcept { return rep_ && rep_ == o.rep_; }
    int useCount() const noexcept { return rep_ ? rep_->refs.load() : 0; }

    size_type find(view_type v, size_type pos = 0) const noexcept { return view().find(v, pos); }
    size_type find(C c, size_type pos = 0) const noexcept { return view().find(c, pos); }
    size_type rfind(view_type v, size_type pos = npos) const noexcept { return view().rfind(v, pos); }
    size_type rfind(C c, size_type pos = npos) const noexcept { return view().rfind(c, pos); }
    size_type find_first_of(view_type v, size_type pos = 0) const noexcept { return view().find_first_of(v, pos); }
    size_type find_last_of(view_type v, size_type pos = npos) const noexcept { return view().find_last_of(v, pos); }
    bool startsWith(view_type v) const noexcept { return view().substr(0, v.size()) == v; }
    bool endsWith(view_type v) const noexcept { return size() >= v.size() && view().substr(size() - v.size()) == v; }
    LightweightString substr(size_type pos, size_type n = npos) const {
        return pos >= size() ? LightweightString() : LightweightString(view().substr(pos, n));
    }
    int compare(view_type v) const noexcept { return view().compare(v); }

    // Writing: each of these makes the record this string's own first.
    C* mutableData() { return own().data(); }
    void set(size_type i, C c) { own()[i] = c; }
    LightweightString& append(view_type v) {
        if (!v.empty()) own().append(v);
        return *this;
    }
    LightweightString& append(size_type n, C c) {
        if (n) own().append(n, c);
        return *this;
    }
    LightweightString& operator+=(view_type v) { return append(v); }
    LightweightString& operator+=(const LightweightString& v) { return append(v.view()); }
    LightweightString& operator+=(const C* v) { return append(v ? view_type(v) : view_type()); }
    LightweightString& operator+=(C c) { return append(1, c); }
    void push_back(C c) { append(1, c); }
    void insert(size_type pos, view_type v) { own().insert(pos < size() ? pos : size(), v); }
    void erase(size_type pos, size_type n = npos) {
        if (pos < size()) own().erase(pos, n);
    }
    void resize(size_type n, C c = C()) {
        if (n != size()) own().resize(n, c);
    }
    void reserve(size_type n) {
        if (n > capacity()) own().reserve(n);
    }
    void clear() noexcept { *this = LightweightString(); }
    void replace(size_type pos, size_type n, view_type v) {
        if (pos <= size()) own().replace(pos, n, v);
    }

    friend LightweightString operator+(const LightweightString& a, view_type b) {
        LightweightString r(a);
        r.append(b);
        return r;
    }
    friend LightweightString operator+(const LightweightString& a, const LightweightString& b) { return a + b.view(); }
    friend LightweightString operator+(const LightweightString& a, const C* b) { return a + view_type(b ? b : emptyText()); }
    friend LightweightString operator+(const C* a, const LightweightString& b) { return LightweightString(a) + b.view(); }
    friend LightweightString operator+(const LightweightString& a, C b) {
        LightweightString r(a);
        r.push_back(b);
        return r;
    }

    friend bool operator==(const LightweightString& a, const LightweightString& b) noexcept { return a.view() == b.view(); }
    friend bool operator==(const LightweightString& a, const C* b) noexcept { return a.view() == view_type(b ? b : emptyText()); }
    friend bool operator==(const LightweightString& a, view_type b) noexcept { return a.view() == b; }
    friend auto operator<=>(const LightweightString& a, const LightweightString& b) noexcept { return a.view() <=> b.view(); }

    friend std::basic_ostream<C>& operator<<(std::basic_ostream<C>& os, const LightweightString& s) { return os << s.view(); }

    // Compares two C strings, a null pointer counting as the empty string.
    static int compare(const C* a, const C* b) noexcept {
        view_type va(a ? a : emptyText()), vb(b ? b : emptyText());
        int r = va.compare(vb);
        return r < 0 ? -1 : (r > 0 ? 1 : 0);
    }

private:
    struct Rep {
        explicit Rep(std::basic_string<C> s) : str(std::move(s)) {}
        std::atomic<int> refs{1};
        std::basic_string<C> str;
    };

    static const C* emptyText() noexcept {
        static const C zero{};
        return &zero;
    }
    void assign(view_type v) {
        if (!v.empty()) rep_ = new Rep(std::basic_string<C>(v));
    }
    void retain() noexcept {
        if (rep_) rep_->refs.fetch_add(1, std::memory_order_relaxed);
    }
    void drop() noexcept {
        if (rep_ && rep_->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) delete rep_;
        rep_ = nullptr;
    }
    std::basic_string<C>& own() {
        if (!rep_) {
            rep_ = new Rep(std::basic_string<C>());
        } else if (rep_->refs.load(std::memory_order_acquire) != 1) {
            Rep* copy = new Rep(rep_->str);
            drop();
            rep_ = copy;
        }
        return rep_->str;
    }

    Rep* rep_ = nullptr;
};

using String = LightweightString<char>;
using WString = LightweightString<wchar_t>;

// Wide text written to a narrow stream goes as UTF-8, so logs and failed test
// expectations show the text.
std::ostream& operator<<(std::ostream& os, const LightweightString<wchar_t>& s);

namespace std {
/// Hashes a string as its text, so strings key unordered containers.
template <class C>
struct hash<LightweightString<C>> {
    std::size_t operator()(const LightweightString<C>& s) const noexcept { return std::hash<std::basic_string_view<C>>()(s.view()); }
};
} // namespace std
