# SPDX-License-Identifier: Apache-2.0
"""A reader's machine after years: the largest pack there can be, and 3000 kept in the workspace.

Made from the compiled-in edition, its texts put together anew; every call makes the same bytes.
"""

import json
import random
from datetime import datetime, timedelta
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[1]
EDITION = REPOSITORY / "CorvaniteInformationCore/seed/information-pack.json"

MAXIMUM_PACK_BYTES = 1_500_000
SIGNALS = 2800
SAVED = 3000
CUSTOM_SOURCES = 100
SEEN_TARGETS = 300
DAYS = 220

NOT_KEPT = 20
"""Every so manieth signal, the first among them, is not kept."""

AS_OF = datetime(2026, 9, 10, 4, 1, 3)


def write_full_data(data_home: Path) -> Path:
    """Lays out the full pack and workspace below the folder, and returns the file with all signals,
    of which the pack holds the first."""
    folder = data_home / "Corvanite/Information"
    folder.mkdir(parents=True)
    signals = make_signals()
    write_compact(folder / "information-pack.json", make_pack(signals))
    workspace = json.dumps(make_workspace(signals), ensure_ascii=False, indent=2, sort_keys=True)
    (folder / "workspace-v1.json").write_text(workspace + "\n")
    every_signal = data_home / "signals.json"
    write_compact(every_signal, {"signals": signals})
    return every_signal


def write_compact(file: Path, document: dict) -> None:
    file.write_bytes(compact(document))


def compact(document: dict) -> bytes:
    return json.dumps(document, ensure_ascii=False, separators=(",", ":")).encode()


def make_signals() -> list[dict]:
    edition = json.loads(EDITION.read_bytes())["signals"]
    sentences = {
        key: [sentence for signal in edition for sentence in sentences_of(signal, key)]
        for key in ("summary", "updateSummary", "digest", "why", "caveat")
    }
    titles = [signal["title"]["zh"].partition("：") for signal in edition]
    endings = [ending for _, _, ending in titles if ending]
    return [
        vary(edition[number % len(edition)], number, len(edition), sentences, endings)
        for number in range(SIGNALS)
    ]


def sentences_of(signal: dict, key: str) -> list[str]:
    text = signal.get(key, {}).get("zh", "")
    return [f"{sentence}。" for sentence in text.split("。") if sentence]


def vary(model: dict, number: int, models: int, sentences: dict, endings: list[str]) -> dict:
    chance = random.Random(number)
    round_number = number // models
    # Now and then a thread has two signals.
    thread = round_number - (1 if round_number and number % 10 == 0 else 0)
    observed = AS_OF - timedelta(minutes=37 * number + 1)
    beginning = model["title"]["zh"].partition("：")[0]
    target = model["followTarget"]
    varied = model | {
        "id": f"{model['id']}-{round_number}",
        "observedAt": stamp(observed),
        "originalUrl": f"{model['originalUrl']}?issue={number}",
        "title": {"zh": f"{beginning} {round_number}.{number % 10}：{chance.choice(endings)}"},
        "followTarget": target | {"id": f"{target['id']}-{thread}"},
    }
    for key, pool in sentences.items():
        if key in model:
            count = len(sentences_of(model, key))
            varied[key] = {"zh": "".join(chance.sample(pool, count))}
    if "publishedAt" in model:
        varied["publishedAt"] = stamp(observed - timedelta(hours=chance.randrange(2, 200)))
    return varied


def make_pack(signals: list[dict]) -> dict:
    """As many of the signals as fit."""
    edition = json.loads(EDITION.read_bytes())
    pack = {
        "schemaVersion": edition["schemaVersion"],
        "asOf": stamp(AS_OF),
        "checkedEntryCount": 12000,
        "selectionHistory": [],
        "signals": [],
    }
    room = MAXIMUM_PACK_BYTES - len(compact(pack | {"selectionHistory": make_days(signals)}))
    for signal in signals:
        room -= len(compact(signal)) + 1
        if room < 0:
            break
        pack["signals"].append(signal)
    return pack | {"selectionHistory": make_days(pack["signals"])}


def make_days(signals: list[dict]) -> list[dict]:
    """Oldest first; the last is the day of the pack and features its first signals."""
    return [
        {
            "date": (AS_OF - timedelta(days=age)).strftime("%Y-%m-%d"),
            "focusSignalIds": [signal["id"] for signal in signals[2 * age :][:3]],
            "totalShown": 15 + age % 12,
        }
        for age in reversed(range(DAYS))
    ]


def make_workspace(signals: list[dict]) -> dict:
    kept = [signal for number, signal in enumerate(signals) if number % NOT_KEPT]
    reasons = {signal["id"]: signal["why"]["zh"] for signal in kept}
    # The oldest are of signals that are no longer published.
    for number in range(SAVED - len(reasons)):
        reasons[f"former-signal-{number}"] = signals[number]["why"]["zh"]
    saved = {
        signal_id: {
            "note": f"第 {age} 条备注：下周再看一次。" if age % 5 == 0 else "",
            "saveReason": reason,
            "savedAt": seconds_stamp(AS_OF - timedelta(minutes=40 * age)),
        }
        for age, (signal_id, reason) in enumerate(reasons.items())
    }
    targets = list(dict.fromkeys(signal["followTarget"]["id"] for signal in reversed(kept)))
    return {
        "customSources": [custom_source(number) for number in range(CUSTOM_SOURCES)],
        "following": targets,
        "hidden": [],
        "reducedLanes": [],
        "saved": saved,
        "seenTargets": targets[-SEEN_TARGETS:],
        "version": 3,
    }


def custom_source(number: int) -> dict:
    topic = f"第 {number} 个想跟踪的话题"
    return {
        "createdAt": seconds_stamp(AS_OF - timedelta(days=number)),
        "id": f"00000000-0000-4000-8000-{number:012}",
        "input": f"https://example.com/changelog/{number}" if number % 2 else topic,
    }


def stamp(time: datetime) -> str:
    return time.strftime("%Y-%m-%dT%H:%M:%S.000Z")


def seconds_stamp(time: datetime) -> str:
    return time.strftime("%Y-%m-%dT%H:%M:%SZ")
