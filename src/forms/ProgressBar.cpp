#include "forms/ProgressBar.h"

#include "forms/ControlVisitor.h"

namespace velkarix {

void ProgressBar::SetPercent(int percent) {
    percent_ = percent;
    Notify(Aspect::Value);
}

void ProgressBar::Accept(ControlVisitor& visitor) {
    visitor.Visit(*this);
}

}  // namespace velkarix
