#include "SizePolicyPrototype.h"

namespace {
QString policyName(QSizePolicy::Policy policy)
{
    return QLatin1String(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(policy));
}
} // namespace

bool SizePolicyPrototype::fromArguments(QScriptContext* context, QSizePolicy* sizePolicy)
{
    QSizePolicy::Policy horizontal;
    QSizePolicy::Policy vertical;
    if (context->argumentCount() != 2 || !ValueTypes::readEnum(context->argument(0), &horizontal)
        || !ValueTypes::readEnum(context->argument(1), &vertical))
        return false;
    *sizePolicy = QSizePolicy(horizontal, vertical);
    return true;
}

int SizePolicyPrototype::horizontalPolicy() const
{
    return thisValue<QSizePolicy>().horizontalPolicy();
}

int SizePolicyPrototype::verticalPolicy() const
{
    return thisValue<QSizePolicy>().verticalPolicy();
}

void SizePolicyPrototype::setHorizontalPolicy(const QScriptValue& policy)
{
    QSizePolicy::Policy p;
    if (enumArgument(policy, &p))
        changeThis<QSizePolicy>(
            [p](QSizePolicy& sizePolicy) { sizePolicy.setHorizontalPolicy(p); });
}

void SizePolicyPrototype::setVerticalPolicy(const QScriptValue& policy)
{
    QSizePolicy::Policy p;
    if (enumArgument(policy, &p))
        changeThis<QSizePolicy>([p](QSizePolicy& sizePolicy) { sizePolicy.setVerticalPolicy(p); });
}

int SizePolicyPrototype::horizontalStretch() const
{
    return thisValue<QSizePolicy>().horizontalStretch();
}

int SizePolicyPrototype::verticalStretch() const
{
    return thisValue<QSizePolicy>().verticalStretch();
}

void SizePolicyPrototype::setHorizontalStretch(int stretch)
{
    changeThis<QSizePolicy>(
        [stretch](QSizePolicy& sizePolicy) { sizePolicy.setHorizontalStretch(stretch); });
}

void SizePolicyPrototype::setVerticalStretch(int stretch)
{
    changeThis<QSizePolicy>(
        [stretch](QSizePolicy& sizePolicy) { sizePolicy.setVerticalStretch(stretch); });
}

QString SizePolicyPrototype::toString() const
{
    const QSizePolicy sizePolicy = thisValue<QSizePolicy>();
    return describe(
        {policyName(sizePolicy.horizontalPolicy()), policyName(sizePolicy.verticalPolicy())});
}
