"""The binding of examples/python: what it refuses, and which function it keeps while the library may call it.

Arguments: the schema of an embedded database. The environment names the library and the binding's folder.
"""

import gc
import os
import sqlite3
import sys
import tempfile
import threading
import unittest

from PyQt6.QtWidgets import QApplication

import giacenza

SCHEMA = sys.argv.pop(1)


class Legame(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.applicazione = QApplication(["prova"])
        cls.applicazione.setQuitOnLastWindowClosed(False)

    def setUp(self):
        self.cartella = tempfile.TemporaryDirectory()
        archivio = os.path.join(self.cartella.name, "depo.db")
        with open(SCHEMA, encoding="utf-8") as schema, sqlite3.connect(archivio) as base:
            base.executescript(schema.read())
        self.oggetto = giacenza.Giacenza()
        self.oggetto.scrivi("PercorsoDatabase", "DRIVER={SQLite3};Database=" + archivio)

    def tearDown(self):
        self.oggetto.rilascia()
        self.cartella.cleanup()

    def apri_e_chiudi(self):
        self.oggetto.chiama("NuovaGiacenza")
        aperte = [finestra for finestra in QApplication.topLevelWidgets() if finestra.isVisible()]
        self.assertEqual(len(aperte), 1)
        aperte[0].close()
        QApplication.processEvents()

    def test_un_tipo_che_non_si_passa(self):
        for dato in (1.5, b"byte", [], object()):
            with self.assertRaisesRegex(TypeError, "^neither a text, an integer nor a truth value: "):
                self.oggetto.scrivi("PercorsoFileIni", dato)
        with self.assertRaises(OverflowError):
            self.oggetto.scrivi("TipoReso", 2**31)
        with self.assertRaises(ValueError):
            self.oggetto.scrivi("PercorsoFileIni", "a\0b")

    def test_quella_di_prima_resta_quando_la_nuova_non_e_presa(self):
        sentite = []
        self.oggetto.quando_finisce(lambda: sentite.append("prima"))
        rifiutate = []

        def da_un_altro():
            try:
                self.oggetto.quando_finisce(lambda: sentite.append("nuova"))
            except giacenza.Errore as errore:
                rifiutate.append(str(errore))

        altro = threading.Thread(target=da_un_altro)
        altro.start()
        altro.join()
        gc.collect()
        self.assertEqual(rifiutate, ["L'oggetto si usa nel thread che lo ha creato."])
        self.apri_e_chiudi()
        self.assertEqual(sentite, ["prima"])

    def test_una_prende_il_posto_dell_altra_mentre_e_chiamata(self):
        sentite = []

        def prima():
            chiamata = self.oggetto._ascoltatore
            self.oggetto.quando_finisce(lambda: sentite.append("nuova"))
            gc.collect()
            # What the library is running must not have gone.
            sentite.append(self.oggetto._ascoltatore is chiamata)

        self.oggetto.quando_finisce(prima)
        self.apri_e_chiudi()
        self.apri_e_chiudi()
        self.assertEqual(sentite, [True, "nuova"])


unittest.main()
