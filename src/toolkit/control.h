#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tarvex {

class Form;
class Frame;

using Colour = std::uint32_t;  // 0xRRGGBB
inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour Grey = 0xC0C0C0;
inline constexpr Colour LightGrey = 0xE0E0E0;
inline constexpr Colour Black = 0x000000;
inline constexpr Colour Red = 0xFF0000;

// A named control of a form: a plain object that a native widget may mirror. A property that changes runs the
// rules that belong to the change at once and within the call, whoever made it.
class Control {
  public:
    static constexpr int NoTabIndex = -1;

    // Adds itself to the form, which must outlive it. `tabIndex` orders the controls for the Tab key.
    Control(Form& form, std::string_view name, int tabIndex);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& Owner() const { return form_; }
    const std::string& Name() const { return name_; }
    int TabIndex() const { return tabIndex_; }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    // The frame that holds the control, which goes out of sight and out of use with it; null for none.
    Frame* Container() const { return container_; }
    void PutInto(Frame& frame) { container_ = &frame; }

    // Whether the user can see and use it as things stand, its frame's state counted in.
    bool Usable() const;
    // Whether this kind of control can have the focus at all.
    virtual bool TakesFocus() const { return false; }
    // Whether the Tab key stops here.
    virtual bool IsTabStop() const { return TakesFocus(); }
    bool CanTakeFocus() const { return TakesFocus() && Usable(); }

    // Gives it the focus, which first runs the leaving rule of the control that has it. Does nothing when it
    // can't take the focus, or when that rule takes the focus back.
    void SetFocus();
    bool HasFocus() const;
    // It has lost the focus, behind every rule of that.
    virtual void FocusGone() {}

    // Called after every change of a property; for the native widget.
    void Observe(std::function<void()> observer) { observer_ = std::move(observer); }

    std::function<void()> OnLostFocus;

  protected:
    void Changed() const {
        if (observer_) observer_();
    }
    // Fails with BadArgument unless what an index stands for is there.
    void RequireIndex(bool isThere) const;
    static void Run(const std::function<void()>& rule) {
        if (rule) rule();
    }

  private:
    Form& form_;
    std::string name_;
    int tabIndex_;
    bool enabled_ = true;
    bool visible_ = true;
    Frame* container_ = nullptr;
    std::function<void()> observer_;
};

}  // namespace tarvex
