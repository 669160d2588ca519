#pragma once

#include <QDialog>

class QLabel;

namespace ComQuorvantVelmar_Plugin {

class AboutBox;

/// The about box: a small panel without a title bar showing the product's icon, name,
/// version and build, centred over its parent. A click anywhere, Escape, or leaving the
/// panel closes it.
class AboutPanel : public QDialog {
    Q_OBJECT
public:
    /// Shows the texts of about; the icon is left out when about has none.
    explicit AboutPanel(const AboutBox& about, QWidget* parent = nullptr);

    QLabel* iconLabel() const { return _icon; }
    QLabel* nameLabel() const { return _name; }
    QLabel* versionLabel() const { return _version; }
    QLabel* buildLabel() const { return _build; }

    /// Opens the about box of the registered principal bundle over parent; it deletes itself
    /// when closed.
    static AboutPanel* showAboutPanel(QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QLabel* _icon;
    QLabel* _name;
    QLabel* _version;
    QLabel* _build;
};

}  // namespace ComQuorvantVelmar_Plugin
