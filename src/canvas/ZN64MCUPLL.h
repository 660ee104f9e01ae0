#pragma once

#include "canvas/controlfactory.h"
#include "model/ZN64ConfigCLK.h"

#include <memory>

class QDomDocument;

/// The base of all series pages: one clock model, and one view of a scene with the picture of the clock tree
/// as its background.
class ZN64MCUPLL : public ControlFactory
{
    Q_OBJECT

public:
    /// picture is the resource path of the background; a picture that cannot be loaded leaves it empty.
    ZN64MCUPLL(ZN64MCUSERIALS series, const QString& picture, QWidget* parent);

    void ZoomIn() { view()->zoomIn(); }
    void ZoomOut() { view()->zoomOut(); }
    void ZoomReset() { view()->zoomReset(); }

    /// Whether hext is part of the tree at present; code generation checks its text only then.
    void Set_Hext_Enable_Falg(bool enabled) { m_hext_enable_flag = enabled; }
    bool Get_Hext_Enable_Falg() const { return m_hext_enable_flag; }

    void Set_GenerateCodeMode(GENERATE_CODE_MODE mode) { m_ZN64ClockConf->Set_GenerateCodeMode(mode); }

    ZN64ConfigCLK& model() { return *m_ZN64ClockConf; }
    const ZN64ConfigCLK& model() const { return *m_ZN64ClockConf; }

    static void SetLineEditColor(QLineEdit* edit, const QColor& color);
    static void SetLabelColor(QLabel* label, const QColor& color);

    /// The text of the first element of that name directly below the root of the XML file. Empty if the file
    /// cannot be read, is not well formed, or has no such element.
    static QString GetXMLElementString(const QString& fileName, const QString& elementName);
    /// The same from a file that has been read.
    static QString GetXMLElementString(const QDomDocument& document, const QString& elementName);

private:
    std::unique_ptr<ZN64ConfigCLK> m_ZN64ClockConf;
    bool m_hext_enable_flag = false;
};
