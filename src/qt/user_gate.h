#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace horvanta {

/// As long as it lives, keys and clicks are lost, but for those widgets that may hear them. A box that is opened
/// meanwhile is heard.
class UserGate final : public QObject {
  public:
    explicit UserGate(std::function<bool(const QWidget*)> mayHear);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<bool(const QWidget*)> mayHear_;
};

}  // namespace horvanta
