#include "pages/ClockTreePage.h"

#include "pages/blocks/AdcBlock.h"
#include "pages/blocks/HickRouteBlock.h"
#include "pages/blocks/HighSpeedBlock.h"
#include "pages/blocks/LowSpeedBlock.h"
#include "pages/blocks/PllSourceBlock.h"
#include "pages/blocks/SystemClockBlock.h"
#include "pages/blocks/UsbBlock.h"
#include "pages/description/arithmetic.h"
#include "widgets/messages.h"

#include <QCoreApplication>

#include <algorithm>

// What the blocks ask of each other through the page, and the typed values that several of them take over.

bool ClockTreePage::rtcOn() const
{
    return m_lowSpeed->rtcOn();
}

bool ClockTreePage::rtcFromLext() const
{
    return m_lowSpeed->lextSelected();
}

bool ClockTreePage::rtcFromHext() const
{
    return m_lowSpeed->hextSelected();
}

bool ClockTreePage::sclkFromPll() const
{
    return m_systemClock->pllSelected();
}

bool ClockTreePage::sclkFromHext() const
{
    return m_systemClock->hextSelected();
}

bool ClockTreePage::sclkFromHick() const
{
    return m_systemClock->hickSelected();
}

bool ClockTreePage::hextFeedsPll() const
{
    return m_pllSource->hextSelected();
}

bool ClockTreePage::usbOn() const
{
    return m_usb && m_usb->on();
}

bool ClockTreePage::usbFromPll() const
{
    return m_usb && m_usb->fromPll();
}

bool ClockTreePage::usbFromHick() const
{
    return m_usb && m_usb->fromHick();
}

bool ClockTreePage::adcOn() const
{
    return !m_adc || m_adc->on();
}

bool ClockTreePage::pllInUse() const
{
    return sclkFromPll() ||
           std::any_of(m_blocks.begin(), m_blocks.end(), [](const auto& block) { return block->usesPll(); });
}

bool ClockTreePage::usbDividerInUse() const
{
    return usbFromPll() ||
           std::any_of(m_blocks.begin(), m_blocks.end(), [](const auto& block) { return block->usesPllU(); });
}

bool ClockTreePage::hextNeeded() const
{
    return (hextFeedsPll() && pllInUse()) ||
           std::any_of(m_blocks.begin(), m_blocks.end(), [](const auto& block) { return block->usesHext(); });
}

bool ClockTreePage::hextInUse() const
{
    return hextNeeded() || (rtcOn() && rtcFromHext());
}

double ClockTreePage::hickAtOutputs() const
{
    const arithmetic::HickRoutes routes{usbFromHick(),
                                        sclkFromHick() && m_hickRoute && m_hickRoute->undivided(),
                                        sclkFromPll() && !hextFeedsPll()};
    return arithmetic::hickAtOutputs(m_description.hickAtOutputs, routes);
}

double ClockTreePage::typedHext() const
{
    return m_highSpeed->typed();
}

bool ClockTreePage::Hext_Value_Valid(double& value)
{
    return m_highSpeed->Hext_Value_Valid(value);
}

bool ClockTreePage::Result_SYSCLK_Valid(double& value)
{
    return m_systemClock->Result_SYSCLK_Valid(value);
}

bool ClockTreePage::readHext()
{
    // The file's number stands in the model already; the edit may hold less of it than the file.
    if (takingDesign())
        return true;
    double hext = 0.0;
    if (!Hext_Value_Valid(hext))
        return false;
    model().Set_Hext_Input_Value(hext);
    return true;
}

bool ClockTreePage::readHextForPll()
{
    return !hextFeedsPll() || readHext();
}

void ClockTreePage::keepTypedSysclk()
{
    double sysclk = 0.0;
    if (!Result_SYSCLK_Valid(sysclk))
        return;
    model().Set_SYSCLKValue(sysclk);
    UpdateParam_From_ResultCLK();
}

void ClockTreePage::hext_LineEdit_returnPressed()
{
    m_highSpeed->hext_LineEdit_returnPressed();
}

void ClockTreePage::correctHext(double hext)
{
    m_highSpeed->correct(hext);
}

QString ClockTreePage::translated(const char* text) const
{
    return QCoreApplication::translate(metaObject()->className(), text);
}

void ClockTreePage::showError(const char* text) const
{
    showErrorBox(translated(text));
}

void ClockTreePage::showErrorBox(const QString& translatedText) const
{
    showMessage(QMessageBox::Critical, translated("Error"), translatedText,
                {
                    {QMessageBox::Ok, translated("Ok")}
    },
                nullptr, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
}

bool ClockTreePage::askToContinue(QMessageBox::Icon icon, const char* text) const
{
    return showMessage(icon, translated("Warning"), translated(text),
                       {
                           {QMessageBox::Yes,    translated("Yes")   },
                           {QMessageBox::Cancel, translated("Cancel")}
    }) != QMessageBox::Cancel;
}
