#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/memory_file_system.h"
#include "support/screens.h"

namespace tarvex {

inline void PrintTo(const Message& message, std::ostream* out) {
    *out << "[" << message.title << "] " << message.prompt
         << (message.buttons == MessageButtons::YesNo ? " (Yes, No)" : "")
         << (message.icon == MessageIcon::Critical ? " (critical)" : "") << " default "
         << static_cast<int>(message.defaultAnswer);
}

}  // namespace tarvex

namespace tarvex::testing {

// Answers questions by a script, in order, and keeps what was shown. Without a script left it answers with
// the button that has the focus first.
class ScriptedMessageBox : public MessageBox {
  public:
    void Answer(MessageAnswer answer) { answers_.push_back(answer); }
    // From now on questions without a script are answered with Yes where `yes` gives true, else with No.
    void AnswerBy(std::function<bool()> yes) { yes_ = std::move(yes); }
    using Answered = std::pair<Message, MessageAnswer>;
    // The messages shown since the last call, with their answers.
    std::vector<Answered> TakeAnswered() { return std::exchange(shown_, {}); }
    std::vector<Message> Take() {
        std::vector<Message> messages;
        for (const auto& [message, answer] : TakeAnswered()) messages.push_back(message);
        return messages;
    }

    MessageAnswer Show(const Message& message) override {
        MessageAnswer answer = message.defaultAnswer;
        if (message.buttons == MessageButtons::YesNo && answer == MessageAnswer::Ok) {
            answer = MessageAnswer::Yes;
        }
        if (message.buttons == MessageButtons::YesNo && yes_) {
            answer = yes_() ? MessageAnswer::Yes : MessageAnswer::No;
        }
        if (message.buttons == MessageButtons::YesNo && !answers_.empty()) {
            answer = answers_.front();
            answers_.pop_front();
        }
        shown_.emplace_back(message, answer);
        return answer;
    }

  private:
    std::deque<MessageAnswer> answers_;
    std::function<bool()> yes_;
    std::vector<Answered> shown_;
};

// A registry of string values by full key path; root and value name are looked at, access is not.
class FakeRegistry : public Registry {
  public:
    // The raw bytes of the value, closing zero included where it has one.
    void Put(std::uint32_t root, const std::string& path, const std::string& name, std::string bytes) {
        values_[{root, path, name}] = std::move(bytes);
    }

    std::optional<std::string> Value(std::uint32_t root, const std::string& path,
                                     const std::string& name) override {
        const auto found = values_.find({root, path, name});
        return found != values_.end() ? std::optional(found->second) : std::nullopt;
    }

  private:
    std::map<std::tuple<std::uint32_t, std::string, std::string>, std::string> values_;
};

class FixedClock : public Clock {
  public:
    std::string ShortDate() override { return "5/14/2001"; }
};

// Letters of one width. A picture is saved where `place` says; as pixels it is the number of its items.
class ScriptedPictures : public PictureServices {
  public:
    std::optional<std::string> place;
    std::string proposed;  // the name that was proposed last

    double Width(const std::string& text, double size, bool) const override {
        return 0.6 * size * static_cast<double>(text.size());
    }
    std::optional<std::string> AskForPlace(const std::string& name) override {
        proposed = name;
        return place;
    }
    std::string PngOf(const Drawing& drawing) override { return std::to_string(drawing.items.size()); }
};

class TextClipboard : public Clipboard {
  public:
    std::string text;

    void Copy(const std::string& copied) override { text = copied; }
    std::string Text() override { return text; }
};

// Keeps what it was to open, unless there is none.
class ScriptedBrowser : public Browser {
  public:
    bool there = true;
    std::string opened;

    bool Open(const std::string& path) override {
        if (there) opened = path;
        return there;
    }
};

// The services of a machine of which everything is in memory. The program lies in C:\Tarvex, the simulator in
// C:\FS2000.
struct TestServices {
    MemoryFileSystem files;
    FakeRegistry registry;
    FixedClock clock;
    ScriptedMessageBox messages;
    ScriptedPictures pictures;
    TextClipboard clipboard;
    ScriptedBrowser browser;

    TestServices() { files.PutFolder("C:\\Tarvex"); }

    Platform ForProgram() {
        return {files, registry, clock, messages, pictures, clipboard, browser, "C:\\Tarvex"};
    }

    // The simulator's folder as its setup leaves it in the registry.
    void Register(const std::string& folder) {
        registry.Put(0x80000002, "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\7.0", "path",
                     folder + '\0');
    }
    // The settings file, the simulator's folders and empty navigation files.
    void PutSimulator() {
        files.Put("C:\\Tarvex\\Tarvex.INI", "C:\\FS2000\r\nN\r\nW\r\nW\r\n");
        for (const char* name : {"wpNavFIX.txt", "wpNavAID.txt", "wpNavAPT.txt"}) {
            files.Put(std::string("C:\\FS2000\\GIOSTAM\\navdata\\") + name, "");
        }
        for (const char* folder : {"Sids", "Stars", "Approaches"}) {
            files.PutFolder(std::string("C:\\FS2000\\Giostam\\navdata\\") + folder);
        }
    }
};

}  // namespace tarvex::testing
