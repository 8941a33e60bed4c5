#include "devserver/MisbehaviourControl.h"

#include "devserver/DevServer.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

using Effect = std::function<void(DevServer&)>; ///< empty when the value is not understood

bool hasOnlyKeys(const QJsonObject& object, const QSet<QString>& allowed) {
    const QList<QString> keys = object.keys();
    return std::all_of(keys.begin(), keys.end(),
                       [&](const QString& key) { return allowed.contains(key); });
}

Effect readReply(const QJsonValue& value) {
    const QJsonObject rule = value.toObject();
    const QString path = rule["path"_L1].toString();
    const int status = rule["status"_L1].toInt(200);
    const int delayMs = rule["delay_ms"_L1].toInt(0);
    if (path.isEmpty() || status < 200 || status > 599 || delayMs < 0 ||
        !hasOnlyKeys(rule, {u"path"_s, u"status"_s, u"delay_ms"_s, u"body"_s, u"drop"_s})) {
        return {};
    }
    Reply reply{.delayMs = delayMs, .dropConnection = rule["drop"_L1].toBool()};
    if (rule.contains("status"_L1)) {
        reply.status = status;
    }
    if (rule.contains("body"_L1)) {
        reply.body = rule["body"_L1].toString().toUtf8();
    }
    return [path, reply](DevServer& server) {
        server.misbehaviour().setReply(path, reply);
    };
}

Effect readClear(const QJsonValue& value) {
    if (!value.toBool()) {
        return {};
    }
    return [](DevServer& server) {
        server.misbehaviour().clear();
    };
}

Effect readRejectAuth(const QJsonValue& value) {
    if (!value.isBool()) {
        return {};
    }
    return [reject = value.toBool()](DevServer& server) {
        server.misbehaviour().setRejectAuth(reject);
    };
}

Effect readWithholdIce(const QJsonValue& value) {
    if (!value.isBool()) {
        return {};
    }
    return [withhold = value.toBool()](DevServer& server) {
        server.misbehaviour().setWithholdIce(withhold);
    };
}

Effect readStateText(const QJsonValue& value) {
    const QJsonObject texts = value.toObject();
    if (texts.isEmpty() || !hasOnlyKeys(texts, {u"handshake-ack"_s, u"complete"_s, u"close"_s})) {
        return {};
    }
    return [texts](DevServer& server) {
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            server.misbehaviour().setStateText(text.key(), text.value().toString());
        }
    };
}

Effect readSessionId(const QJsonValue& value) {
    if (!value.isString()) {
        return {};
    }
    return [id = value.toString()](DevServer& server) {
        server.misbehaviour().setSessionId(id);
    };
}

Effect readManifestVersion(const QJsonValue& value) {
    if (!value.isString()) {
        return {};
    }
    return [version = value.toString()](DevServer& server) {
        server.setManifestVersion(version);
    };
}

Effect readDropSignaling(const QJsonValue& value) {
    if (!value.isString()) {
        return {};
    }
    return [clientId = value.toString()](DevServer& server) {
        server.dropSignaling(clientId);
    };
}

Effect readPush(const QJsonValue& value) {
    const QJsonObject push = value.toObject();
    if (!push["client_id"_L1].isString() || !push["text"_L1].isString() || push.size() != 2) {
        return {};
    }
    return [push](DevServer& server) {
        server.pushText(push["client_id"_L1].toString(), push["text"_L1].toString());
    };
}

Effect readRelay(const QJsonValue& value) {
    static const QHash<QString, Effect> kActions{
        {u"stall"_s,
         [](DevServer& server) {
             server.relay().stall();
         }},
        {u"resume"_s,
         [](DevServer& server) {
             server.relay().resume();
         }},
        {u"drop"_s,
         [](DevServer& server) {
             server.relay().dropConnections();
         }},
        {u"refuse"_s,
         [](DevServer& server) {
             server.relay().refuseConnections();
         }},
        {u"accept"_s,
         [](DevServer& server) {
             server.relay().acceptConnections();
         }},
    };
    return kActions.value(value.toString());
}

struct Key {
    QString name;
    Effect (*read)(const QJsonValue&);
    QString help;
};

const std::array<Key, 10>& keys() {
    static const std::array<Key, 10> kKeys{{
        {u"reply"_s, readReply,
         u"{\"path\": suffix, \"delay_ms\", \"status\", \"body\", \"drop\": true}"_s},
        {u"clear"_s, readClear, u"true: no scripted replies, texts or rejected AUTH any more"_s},
        {u"reject_auth"_s, readRejectAuth, u"true or false: answer AUTH with AUTH_FAIL"_s},
        {u"withhold_ice"_s, readWithholdIce,
         u"true or false: forward no description or candidate, so that the peers need the relay"_s},
        {u"state_text"_s, readStateText,
         u"{\"handshake-ack\" | \"complete\" | \"close\": state to report, \"\" for the true one}"_s},
        {u"session_id"_s, readSessionId, u"session ID to report there, \"\" for the true one"_s},
        {u"manifest_version"_s, readManifestVersion, u"version in the update manifest"_s},
        {u"drop_signaling"_s, readDropSignaling, u"client ID whose socket is closed"_s},
        {u"push"_s, readPush, u"{\"client_id\", \"text\"}: raw text frame to that client"_s},
        {u"relay"_s, readRelay,
         u"\"stall\", \"resume\", \"drop\", \"refuse\" or \"accept\" (connections)"_s},
    }};
    return kKeys;
}

Effect readKey(const QString& name, const QJsonValue& value) {
    for (const Key& key : keys()) {
        if (key.name == name) {
            return key.read(value);
        }
    }
    return {};
}

} // namespace

std::optional<Answer> MisbehaviourControl::answer(const Request& request) {
    if (request.path != "/devserver/misbehave"_L1 || request.method != "POST"_L1) {
        return std::nullopt;
    }
    const QJsonObject wishes = jsonObject(request.body);
    QList<Effect> effects;
    for (auto wish = wishes.begin(); wish != wishes.end(); ++wish) {
        effects.append(readKey(wish.key(), wish.value()));
        if (!effects.last()) {
            return refusal(400, u"Not understood: %1"_s.arg(wish.key()));
        }
    }
    if (effects.isEmpty()) {
        return refusal(400, u"Not a JSON object with a misbehaviour"_s);
    }
    for (const Effect& effect : effects) {
        effect(m_server);
    }
    return jsonAnswer({});
}

QString MisbehaviourControl::help() {
    QString text = u"POST /devserver/misbehave takes a JSON object with any of these keys:\n"_s;
    for (const Key& key : keys()) {
        text += u"  %1  %2\n"_s.arg(key.name, -16).arg(key.help);
    }
    return text;
}

} // namespace corvane::devserver
