"""A preferences folder with many templates."""
import os
import subprocess


def fill_with_templates(easel, prefs, count):
    """Writes one template through the program and copies it."""
    os.makedirs(prefs, exist_ok=True)
    subprocess.run([easel, "play", "-", "--prefs", prefs], check=True, stdout=subprocess.DEVNULL,
                   input=b'start\noptions\nchoose 9 1\nset 4 "T"\nhit 1\nhit 2\nquit\n')
    folder = next(root for root, _, files in os.walk(prefs) if "T.GRD" in files)
    for prefix in ("", "._"):
        with open(os.path.join(folder, prefix + "T.GRD"), "rb") as file:
            template = file.read()
        for number in range(1, count):
            with open(os.path.join(folder, f"{prefix}T{number}.GRD"), "wb") as file:
                file.write(template)
