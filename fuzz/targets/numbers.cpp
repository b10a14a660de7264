#include <cmath>

#include "base/fault.h"
#include "base/number_text.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

namespace {

/// What TextToNumber answers to a text.
enum class Answer { kNumber, kNoNumber, kTooLarge };

Answer AnswerTo(const std::string& text) {
    try {
        TextToNumber(text);
        return Answer::kNumber;
    } catch (const TypeMismatchFault&) {
        return Answer::kNoNumber;
    } catch (const OverflowFault&) {
        return Answer::kTooLarge;
    }
}

void RequireOneAnswer(const std::string& text) {
    const Answer answer = AnswerTo(text);
    Require(IsNumeric(text) == (answer != Answer::kNoNumber), "a number is numeric");
    Require(NumberIn(text).has_value() == (answer == Answer::kNumber), "a number is found");
}

void RequireItsWayBack(double value) {
    const std::string text = NumberToText(value);
    SignedFixedText(value);
    if (!std::isfinite(value)) {
        Require(!IsNumeric(text), "what is no number reads as none");
    } else if (const auto read = NumberIn(text)) {
        Require(NumberToText(*read) == text, "a number's text reads as that number");
    }
}

}  // namespace

void FuzzNumbers(ByteView bytes) {
    FuzzInput input(bytes);
    RequireItsWayBack(input.TakeFloat64());
    RequireOneAnswer(input.TakeRest());
}

}  // namespace horavex
