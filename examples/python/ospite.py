#!/usr/bin/env python3
"""A host in Python: it opens the registration screen in PyQt's event loop and ends when the operator has left it.

    PARTI=$(pkg-config --variable=cartellaparti giacenza-c)
    DATABASE="DRIVER={SQLite3};Database=depo.db;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=$PARTI/libgiacenza_sqlite.so"
    ospite.py "$DATABASE" giacenza.ini logo.gif

Prints "fine" when the screen was left. Codes: 0 the screen was left, 1 something failed, 2 wrong command line.
"""

import sys

from PyQt6.QtWidgets import QApplication

import giacenza


def main():
    if len(sys.argv) != 4:
        print("Uso: ospite.py STRINGA-DI-CONNESSIONE FILE-INI LOGO", file=sys.stderr)
        return 2
    # The library uses the same Qt as PyQt, and with it this QApplication.
    applicazione = QApplication(sys.argv[:1])
    applicazione.setQuitOnLastWindowClosed(False)

    def finita():
        print("fine", flush=True)
        applicazione.exit(0)

    with giacenza.Giacenza() as giacenze:
        giacenze.scrivi("PercorsoDatabase", sys.argv[1])
        giacenze.scrivi("PercorsoFileIni", sys.argv[2])
        giacenze.scrivi("PercorsoLogoIntestazione", sys.argv[3])
        giacenze.quando_finisce(finita)
        try:
            giacenze.chiama("NuovaGiacenza")
        except giacenza.Errore as errore:
            stato = f" [{errore.sqlstate}]" if errore.sqlstate else ""
            print(f"La schermata non è stata aperta: {errore}{stato}", file=sys.stderr)
            return 1
        return applicazione.exec()


if __name__ == "__main__":
    sys.exit(main())
