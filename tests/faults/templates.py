"""The stores that jobs start with, and the documents that they import."""

import json
import subprocess
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

from station import Station
from store import ask_store, stored_rows


@dataclass
class Template:
    """A store that jobs start with, and its content."""

    path: Path
    rows: Counter
    definitions: dict


@dataclass
class Document:
    """A document to import, and the definitions of the small store after the import."""

    path: Path
    imported: dict


def make_templates(setting):
    for name, old_rows in (("new", 0), ("small", 60), ("big", 20000)):
        path = setting.work / f"{name}.mdb"
        subprocess.run([setting.programs / "mkstore", "--demo", path], check=True)
        ask_store(
            path,
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
            f"LIMIT {old_rows}) INSERT INTO tblEvents (dtDLDateTime, tPipeID, dtDateTime, "
            "tButtonCode, tButtonName, tButtonDesc, wGroupType, tGroupName, tGroupDesc) SELECT "
            "45300, '0D0D0D0D', 45000 + i / 1440.0, printf('%06X', i), 'Unknown', '', 0, '', '' "
            "FROM n;",
        )
        rows, faults = stored_rows(path)
        definitions = Station(setting, setting.work / f"{name}-first", path).definitions()
        if faults or sum(rows.values()) != old_rows or not definitions:
            raise RuntimeError(f"the {name} store cannot be made: {faults}")
        setting.templates[name] = Template(path, rows, definitions)
    for name, buttons in (("small", 20), ("big", 1000)):
        path = setting.work / f"import-{name}.json"
        path.write_text(json.dumps(definitions_document(buttons)))
        station = Station(setting, setting.work / f"{name}-second", setting.templates["small"].path)
        if station.control("setup", "import", path).wait().status() != 0:
            raise RuntimeError("the document cannot be imported")
        setting.documents[name] = Document(path, station.definitions())
        rows, _ = station.rows()
        setting.templates[f"{name} imported"] = Template(station.store, rows, station.definitions())


def definitions_document(buttons):
    codes = [f"F{number:05X}" for number in range(buttons)]
    return {
        "groups": [
            {
                "type": "site",
                "name": f"Hall {hall}",
                "buttons": [
                    {"code": code, "name": f"Door {code}", "description": f"Left of gate {code}"}
                    for code in codes[hall::10]
                ],
            }
            for hall in range(10)
        ],
        "readers": [{"id": "0E0E0E0E", "description": "Spare reader"}],
        "tours": [
            {
                "name": f"Round {tour}",
                "start": "22:30",
                "tolerance": 5,
                "points": [{"minutes": 10, "button": code} for code in codes[tour::10]],
            }
            for tour in range(3)
        ],
    }
