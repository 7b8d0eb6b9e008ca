#include "platform/win32/ScriptShellReader.h"

#include <optional>
#include <string>
#include <utility>

#include "platform/win32/ComObjects.h"
#include "platform/win32/SystemLibrary.h"
#include "platform/win32/WideText.h"

// The header of automation needs the system's before it.
#include <oleauto.h>

namespace velkarix {
namespace {

struct AutomationCalls {
    decltype(&::VariantClear) clear;
    decltype(&::SysAllocString) allocate;
    decltype(&::SysStringLen) length;

    bool IsThere() const { return clear != nullptr && allocate != nullptr && length != nullptr; }
};

const AutomationCalls& Automation() {
    static SystemLibrary library("oleaut32.dll");
    static const AutomationCalls calls{
        library.Find<decltype(&::VariantClear)>("VariantClear"),
        library.Find<decltype(&::SysAllocString)>("SysAllocString"),
        library.Find<decltype(&::SysStringLen)>("SysStringLen"),
    };
    return calls;
}

// A value of automation, with what it owns. Only where the calls are there.
class Variant {
  public:
    Variant() = default;
    explicit Variant(const std::wstring& text) {
        value_.vt = VT_BSTR;
        value_.bstrVal = Automation().allocate(text.c_str());
    }
    ~Variant() { Automation().clear(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT* Value() { return &value_; }

    // False for anything but a text. The null pointer is an empty one.
    bool Text(std::string& text) const {
        if (value_.vt != VT_BSTR) return false;
        text = value_.bstrVal == nullptr
                   ? std::string()
                   : ToAnsi({value_.bstrVal, Automation().length(value_.bstrVal)});
        return true;
    }
    ComPointer<IDispatch> Object() const {
        if (value_.vt != VT_DISPATCH || value_.pdispVal == nullptr) return nullptr;
        return QueryObject<IDispatch>(*value_.pdispVal);
    }

  private:
    VARIANT value_{};  // holds nothing
};

// Calls the member of that name, which takes `argument` or, where that is null, nothing.
bool Invoke(IDispatch& object, const wchar_t* name, WORD kind, VARIANT* argument, VARIANT* result) {
    std::wstring member = name;
    LPOLESTR names[] = {member.data()};
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(object.GetIDsOfNames(GUID{}, names, 1, LOCALE_USER_DEFAULT, &id))) return false;
    DISPPARAMS parameters{argument, nullptr, argument == nullptr ? 0u : 1u, 0};
    return SUCCEEDED(object.Invoke(id, GUID{}, LOCALE_USER_DEFAULT, kind, &parameters, result,
                                   nullptr, nullptr));
}

bool ReadProperty(IDispatch& object, const wchar_t* name, std::string& text) {
    Variant value;
    return Invoke(object, name, DISPATCH_PROPERTYGET, nullptr, value.Value()) && value.Text(text);
}

// The object makes a new shortcut of a path where no file is.
bool IsFile(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

class ScriptShellReader : public ShortcutReader {
  public:
    // Null where the object can't be made.
    static std::unique_ptr<ShortcutReader> Make() {
        auto reader = std::make_unique<ScriptShellReader>();
        const std::optional<CLSID> classId = ClassNamed(L"WScript.Shell");
        if (!classId || !Automation().IsThere()) return nullptr;
        reader->shell_ = CreateObject<IDispatch>(*classId);
        if (!reader->shell_) return nullptr;
        return reader;
    }

    bool Read(const std::string& path, Shortcut& shortcut) override {
        if (path.size() >= MAX_PATH || !IsFile(path)) return false;
        Variant file(ToWide(path));
        Variant made;
        if (!Invoke(*shell_, L"CreateShortcut", DISPATCH_METHOD, file.Value(), made.Value())) {
            return false;
        }
        const ComPointer<IDispatch> link = made.Object();
        Shortcut read;
        if (!link || !ReadProperty(*link, L"TargetPath", read.targetPath) ||
            !ReadProperty(*link, L"Arguments", read.arguments) ||
            !ReadProperty(*link, L"IconLocation", read.iconLocation)) {
            return false;
        }
        shortcut = std::move(read);
        return true;
    }

  private:
    ComSession session_;  // before the object, which goes first
    ComPointer<IDispatch> shell_;
};

}  // namespace

std::unique_ptr<ShortcutReader> MakeScriptShellReader() {
    return ScriptShellReader::Make();
}

}  // namespace velkarix
