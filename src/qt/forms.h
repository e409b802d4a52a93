#pragma once

#include <QWidget>

#include <memory>
#include <string_view>

namespace horvanta {

/// The widgets of the Designer form of that name; none where there is no such form.
std::unique_ptr<QWidget> MakeForm(std::string_view name);

}  // namespace horvanta
