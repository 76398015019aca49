// Keystrokes and pastes in the number fields: what they accept, and what becomes of it.

#include "FuzzTarget.h"
#include "canvas/NumberFormatter.h"
#include "support/FakeControls.h"
#include "support/Gradients.h"
#include "support/NoHistory.h"

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr double largest = std::numeric_limits<double>::max();
    FuzzedDataProvider input{data, size};
    GlobalData record = defaultRecord();
    FakeControls controls;
    ColorMarkers markers{record.gradient};
    NoHistory history;
    StopControls form{controls.set, record, markers, history, [] {}, [] {}};
    form.showSelectedStop();
    while (input.remaining_bytes() > 0) {
        const auto& [value, name, decimal, maximum, step] = input.PickValueInArray(stopValues);
        const NumberFormatter formatter{value};
        std::string& field = controls.fields[static_cast<std::size_t>(value)].shown;
        const auto [place, removed] = anyRange(input, field.size());
        std::string text = field;
        text.replace(place, removed, input.ConsumeRandomLengthString());
        const char* const letters = decimal ? " \t\n\r\v\f+-0123456789.eE" : " \t\n\r\v\f+-0123456789";
        char* end = nullptr;
        const double number = std::strtod(text.c_str(), &end);
        const bool isNumber =
            end == text.c_str() + text.size() && text.find_first_not_of(letters) == text.npos;
        require(formatter.isPartialStringValid(text) == isNumber, "a field takes numbers and an empty text");
        if (isNumber) {
            const double expected =
                decimal ? std::clamp(number, -largest, largest) : std::clamp(number, -0x1p31, 0x1p31 - 1);
            require(formatter.value(text) == expected, "a text has its value");
            field = text;
            form.updateTextFieldValue(value);
            const double shown = formatter.value(field);
            require(shown >= 0 && shown <= maximum, "a field stays in range");
            require(formatter.text(shown) == field, "a field shows what it holds");
        }
    }
    return 0;
}
