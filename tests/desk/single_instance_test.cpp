#include "desk/bus/single_instance.h"

#include "desk/bus/application_interface.h"
#include "tests/session/private_bus.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

const QString instanceName = QStringLiteral("org.skyvane.Test.Instance");

} // namespace

TEST(SingleInstance, theSecondIsNotTheFirstUntilThatOneHasEnded)
{
    const test::PrivateBus session;
    {
        const SingleInstance first{session.connection(), instanceName};
        EXPECT_TRUE(first.isFirst());
        {
            const SingleInstance second{session.other(), instanceName};
            EXPECT_FALSE(second.isFirst());
        }
        EXPECT_FALSE((SingleInstance{session.other(), instanceName}.isFirst()));
    }
    EXPECT_TRUE((SingleInstance{session.other(), instanceName}.isFirst()));
}

TEST(SingleInstance, withoutABusEveryStartIsTheFirst)
{
    const QDBusConnection none{QStringLiteral("none")};
    const SingleInstance one{none, instanceName};
    EXPECT_TRUE(one.isFirst());
    EXPECT_TRUE((SingleInstance{none, instanceName}.isFirst()));
}

TEST(SingleInstance, aNameThatNobodyOwnsDoesNotAnswer)
{
    const test::PrivateBus session;
    const auto reply = SingleInstance::askOwner<ApplicationInterface>(session.connection(), instanceName,
        [](ApplicationInterface& application) { return application.Activate({}); });
    EXPECT_EQ(reply.error().type(), QDBusError::ServiceUnknown);
}

TEST(BusName, anObjectsPathIsItsNameAfterSlashes)
{
    EXPECT_EQ(BusName::path(BusName::host()), "/org/skyvane/Host");
    EXPECT_EQ(BusName::path(BusName::companion()), "/org/skyvane/Companion");
}

} // namespace skyvane
