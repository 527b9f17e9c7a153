// Sources: toolkit/wine_registry.cpp startup/simulator_folder.cpp
// Any bytes as a Wine registry file, and any text as key, name and value of a well-formed one.

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string>

#include "geometry/text_rules.h"
#include "startup/simulator_folder.h"
#include "target.h"
#include "toolkit/wine_registry.h"

namespace tarvex::fuzzing {
namespace {

const std::string Header = "WINE REGISTRY Version 2\n";
const std::string SimulatorKey = "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\7.0";

// A registry that is one file.
class FileRegistry : public Registry {
  public:
    explicit FileRegistry(std::string_view text) : text_(text) {}

    std::optional<std::string> Value(std::uint32_t, const std::string& path,
                                     const std::string& name) override {
        const auto values = FindWineKey(text_, path);
        const std::string* value = values ? FindWineValue(*values, name) : nullptr;
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }

  private:
    std::string_view text_;
};

std::string Hex(const char* form, unsigned char byte) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), form, byte);
    return text.data();
}

// Each byte is a character of Latin-1.
std::string Escaped(std::string_view text, char end) {
    std::string escaped;
    for (char c : text) {
        if (c == end || c == '\\') {
            escaped += {'\\', c};
        } else if (c >= ' ' && c <= '~') {
            escaped += c;
        } else {
            escaped += Hex("\\x%04x", static_cast<unsigned char>(c));
        }
    }
    return escaped;
}

std::string Utf8(std::string_view latin1) {
    std::string text;
    for (char c : latin1) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            text += c;
        } else {
            text += {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
        }
    }
    return text;
}

std::string HexList(std::string_view bytes) {
    constexpr std::size_t BytesOfLine = 25;
    std::string list = "hex:";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) list += i % BytesOfLine == 0 ? ",\\\n  " : ",";
        list += Hex("%02x", static_cast<unsigned char>(bytes[i]));
    }
    return list;
}

std::string Shouted(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    return text;
}

void CheckValue(std::string_view file, const std::string& key, const std::string& name,
                const std::string& bytes) {
    const auto values = FindWineKey(file, Shouted(key));
    Require(values.has_value(), "a key is found whatever its case", {file, key});
    const std::string* value = FindWineValue(*values, Shouted(name));
    Require(value != nullptr && *value == bytes, "a value comes back as it was written", {file, name});
}

// A text as a value holds it.
std::string Closed(std::string_view text) {
    return Utf8(text) + (text.ends_with('\0') ? "" : std::string(1, '\0'));
}

// `text` as a value, as bytes, as the name of a value, as a key.
void CheckWellFormed(std::string_view text) {
    const std::string section = Header + "\n[" + Escaped(SimulatorKey, ']') + "] 970000000\n#time=1d\n";
    const std::string quoted = '"' + Escaped(text, '"') + '"';
    CheckValue(section + "\"Path\"=" + quoted + "\n", SimulatorKey, "path", Closed(text));
    CheckValue(section + "@=str(2):" + quoted + "\n", SimulatorKey, "", Closed(text));
    CheckValue(section + "\"path\"=" + HexList(text) + "\n\"b\"=dword:00000001\n", SimulatorKey, "path",
               std::string(text));
    CheckValue(section + quoted + "=dword:0A0b0C01\n", SimulatorKey, Utf8(text), "\x01\x0C\x0B\x0A");
    CheckValue(Header + "[" + Escaped(text, ']') + "]\n@=\"x\"\n", Utf8(text), "", std::string("x\0", 2));
}

void CheckAnyFile(std::string_view text) {
    const auto values = FindWineKey(text, SimulatorKey);
    FileRegistry registry(text);
    const std::string folder = RegisteredSimulatorFolder(registry);
    Require(Trim(folder) == folder, "the folder has no blanks at its ends", {folder});
    if (!values) {
        Require(folder.empty(), "no key, no folder");
        return;
    }
    for (const auto& [name, bytes] : *values) {
        Require(Shouted(name).size() == name.size() && FindWineValue(*values, Shouted(name)) == &bytes,
                "a value is found whatever its case", {name});
    }
    const std::string_view body = text.substr(std::min(text.find('\n'), text.size()));
    Require(FindWineKey(Header + "[Other]\n\"path\"=\"x\"\n" + std::string(body), SimulatorKey) == values,
            "another key in front changes nothing");
}

}  // namespace

void TryInput(std::string_view input) {
    CheckAnyFile(input);
    CheckAnyFile(Header + std::string(input));
    CheckWellFormed(input);
}

}  // namespace tarvex::fuzzing
