#pragma once

#include "pages/description/signalnames.h"
#include "tree/circuit.h"

/// What is to be told of one signal.
struct ClockSignal
{
    QString name;
    bool used = false;
    std::optional<double> clock; ///< in its unit; nothing where nobody knows it
    const char* unit = "MHz";
    QString origin; ///< "8.000000 MHz / 1 * 144"; empty for an oscillator itself
};

/// The names and frequencies of all signals of a tree, in one state of the design.
class ClockSignals
{
public:
    /// All of it must outlive this. hickAtOutputs: MHz.
    ClockSignals(const PageDescription& page, const ZN64ConfigCLK& model, const tree::Picture& picture,
                 const tree::Circuit& circuit, const QVector<tree::ControlState>& states,
                 double hickAtOutputs);

    ClockSignal at(int net) const;
    /// The signal itself and all flags of its name; or the signal of that name and its other flags.
    QVector<int> together(int net) const;

private:
    struct Way
    {
        int root = -1; ///< the oscillator's signal; -1 where there is none
        QVector<Factor> factors;
        std::optional<double> known; ///< the nearest clock on the way that the model knows, in its unit
        int behindKnown = 0;         ///< how many of the factors come behind it
    };

    static QString originOf(const Way& way, const ClockReading& root, const QString& name);
    QString nameOf(int net) const;
    Way wayOf(int net) const;
    std::optional<Factor> factorAt(int net) const;
    std::optional<Factor> flagFactor(ClockSource clock) const;
    QString boxText(const QString& name) const;
    std::optional<ClockReading> oscillator(int net) const;
    /// The clock that the model has for the signal itself.
    std::optional<ClockReading> modelClock(int net) const;

    const PageDescription& m_page;
    QVector<std::optional<SignalName>> m_names; ///< of each signal
    QVector<ClockSource> m_flagged;             ///< what each signal takes up; none of one that no flag gives
    const ZN64ConfigCLK& m_model;
    const tree::Picture& m_picture;
    const tree::Circuit& m_circuit;
    const QVector<tree::ControlState>& m_states;
    double m_hickAtOutputs;
};
