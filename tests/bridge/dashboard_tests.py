"""What the tables of the dashboard show, as promtool works it out."""

import json
import subprocess
import tempfile
import unittest
from pathlib import Path

DASHBOARD = Path(__file__).resolve().parents[2] / "packaging/bridge/projectors-dashboard.json"


def expression(title):
    panel, = (panel for panel in json.loads(DASHBOARD.read_text())["panels"] if panel["title"] == title)
    return panel["targets"][0]["expr"]


class Dashboard(unittest.TestCase):
    def check(self, title, series, shown):
        """`series` are values at the start; `shown` is what the table has after a minute, None for no number."""
        shows = expression(title)
        expected = {f"({shows}) >= 0": {labels: value for labels, value in shown.items() if value is not None},
                    f"count by (instance, projector) ({shows})": dict.fromkeys(shown, 1)}
        test = {"interval": "1m",
                "input_series": [{"series": name, "values": f"{value}x1"} for name, value in series.items()],
                "promql_expr_test": [{"expr": expr, "eval_time": "1m", "exp_samples": [
                    {"labels": labels, "value": value} for labels, value in samples.items()]}
                    for expr, samples in expected.items()]}
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump({"rule_files": [], "tests": [test]}, file)
            file.flush()
            run = subprocess.run(["promtool", "test", "rules", file.name], capture_output=True, text=True, check=False)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)

    def test_all_that_do_not_answer_are_silent(self):
        up, answered = "projector_up", "projector_last_answer_timestamp_seconds"
        late, never, well = (f'{{instance="a",projector="{name}"}}' for name in ("Late", "Never", "Well"))
        self.check("Silent", {up + late: 0, up + never: 0, up + well: 1, answered + late: 20, answered + well: 50},
                   {late: 40, never: None})


if __name__ == "__main__":
    unittest.main()
