#include "golden.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_info_validator.h>

#include <QMetaMethod>
#include <QTest>

using namespace Zel;

namespace {

// The declarations in order, one per line: "signal tagRemoved(int idx)", "private bool
// removeTag(int idx)". Omits the overloads generated for default arguments.
QStringList declarations(const QMetaObject &meta) {
    QStringList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.attributes() & QMetaMethod::Cloned)
            continue;
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        QStringList parameters;
        for (int p = 0; p < method.parameterCount(); ++p) {
            const QByteArray declared =
                method.parameterTypes().at(p) + ' ' + method.parameterNames().at(p);
            parameters.append(QString::fromLatin1(declared).trimmed());
            if (isSignal && method.parameterType(p) == QMetaType::UnknownType)
                parameters.last() += QLatin1String(" that cannot be queued");
        }
        const QString prefix = isSignal ? QStringLiteral("signal ")
                                        : QString(QString::fromLatin1(method.typeName()) % u' ');
        const QString access =
            method.access() == QMetaMethod::Private ? QStringLiteral("private ") : QString();
        result.append(access % prefix % QString::fromLatin1(method.name()) % u'(' %
                      parameters.join(QLatin1String(", ")) % u')');
    }
    return result;
}

} // namespace

/// Compares what each class declares to Qt's meta-object system with the file of its name in
/// data/interface: editors connect by these names, and the order is part of the interface.
class TestInterfaces : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void declared_data();
    void declared();
};

Q_DECLARE_METATYPE(const QMetaObject *)

void TestInterfaces::declared_data() {
    QTest::addColumn<const QMetaObject *>("meta");
    for (const QMetaObject *meta :
         {&PackageInfoModel::staticMetaObject, &BehaviorInfoModel::staticMetaObject,
          &DialogInfoModel::staticMetaObject, &ServiceInfoModel::staticMetaObject,
          &PackageInfoValidator::staticMetaObject})
        QTest::newRow(meta->className()) << meta;
}

void TestInterfaces::declared() {
    QFETCH(const QMetaObject *, meta);
    const PackageInfoModel registersTheTypes;
    const QString name = QString::fromLatin1(meta->className()).remove(QStringLiteral("Zel::"));
    const QString declared = declarations(*meta).join(u'\n') % u'\n';
    COMPARE_WITH_GOLDEN(QStringLiteral(ZEL_TEST_DATA "/interface/%1.txt").arg(name),
                        declared.toUtf8());
}

QTEST_GUILESS_MAIN(TestInterfaces)
#include "tst_interfaces.moc"
