#pragma once

#include <string_view>

class QWidget;

namespace horvanta {

/// Lays out an empty widget as the Designer form of that name.
void SetUpForm(std::string_view name, QWidget& widget);

}  // namespace horvanta
