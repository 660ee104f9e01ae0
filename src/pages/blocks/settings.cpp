#include "pages/blocks/settings.h"

#include <QRadioButton>

#include <algorithm>

Acceptance settings::switched()
{
    return [](double value) { return value != 0.0 ? 1.0 : 0.0; };
}

Acceptance settings::oneOf(std::vector<double> values, double fallback)
{
    return [values = std::move(values), fallback](double value) {
        return std::find(values.begin(), values.end(), value) != values.end() ? value : fallback;
    };
}

Acceptance settings::unchecked()
{
    return [](double value) { return value; };
}

namespace {

Setting numeric(ZN64ConfigCLK& model, ModelField field, std::function<void(double)> show, Acceptance accept)
{
    Setting setting;
    setting.set = [&model, field, show = std::move(show)](double value) {
        show(value);
        field.set(model, value);
    };
    setting.text = [&model, field] { return QString::number(static_cast<int>(field.get(model)), 10); };
    setting.read = [set = setting.set, accept = std::move(accept)](const QString& text) {
        set(accept(text.toInt(nullptr, 10)));
    };
    return setting;
}

} // namespace

Setting settings::whole(ZN64ConfigCLK& model, ModelField field, std::function<void(double)> show,
                        Acceptance accept)
{
    return numeric(model, field, std::move(show), std::move(accept));
}

Setting settings::decimal(ZN64ConfigCLK& model, ModelField field, std::function<void(double)> show,
                          Acceptance accept)
{
    Setting setting = numeric(model, field, std::move(show), accept);
    setting.text = [&model, field] { return QString::number(field.get(model), 'f', 1); };
    setting.read = [set = setting.set, accept = std::move(accept)](const QString& text) {
        set(accept(text.toDouble()));
    };
    return setting;
}

Setting settings::radios(ZN64ConfigCLK& model, ModelField field, const std::vector<RadioChoice>& choices,
                         Acceptance accept)
{
    Setting setting = whole(
        model, field, [](double) {}, accept);
    setting.set = [&model, field, &choices](double value) {
        field.set(model, value);
        checkValue(choices, value);
    };
    setting.offers = [&choices](double value) {
        return std::any_of(choices.begin(), choices.end(),
                           [value](const RadioChoice& choice) { return choice.value == value; });
    };
    setting.read = [set = setting.set, accept = std::move(accept)](const QString& text) {
        set(accept(text.toInt(nullptr, 10)));
    };
    return setting;
}

int checkedValue(const std::vector<RadioChoice>& choices)
{
    const auto choice = std::find_if(choices.begin(), choices.end(),
                                     [](const RadioChoice& each) { return each.radio->isChecked(); });
    return choice != choices.end() ? choice->value : choices.front().value;
}

void checkValue(const std::vector<RadioChoice>& choices, double value)
{
    for (const RadioChoice& choice : choices)
        if (choice.value == value)
            choice.radio->setChecked(true);
}

std::vector<double> valuesOf(const std::vector<RadioChoice>& choices)
{
    std::vector<double> values;
    for (const RadioChoice& choice : choices)
        values.push_back(choice.value);
    return values;
}
