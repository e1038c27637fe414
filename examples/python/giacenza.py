"""The component in Python, by its C interface: a class that invokes the members by name."""

import ctypes
import os
from ctypes import POINTER, byref, c_char_p, c_int32, c_uint32, c_uint64, c_void_p

ABI = 1
VUOTO, TESTO, INTERO, LOGICO = range(4)
LEGGI, SCRIVI, METODO = 1, 2, 3
DATABASE = 20
ID_FINE = 1


class _Valore(ctypes.Structure):
    _fields_ = [("tipo", c_int32), ("intero", c_int32), ("testo", c_char_p)]


_Ascoltatore = ctypes.CFUNCTYPE(None, c_uint64, c_void_p)


def _carica():
    """The library: the file that GIACENZA_LIBRERIA names, else the installed one."""
    libreria = ctypes.CDLL(os.environ.get("GIACENZA_LIBRERIA", "libgiacenza.so.0"))
    for nome, risultato, argomenti in (
        ("versione", c_char_p, []),
        ("abi", c_uint32, []),
        ("errore_testo", c_char_p, []),
        ("errore_sqlstate", c_char_p, []),
        ("crea", c_int32, [POINTER(c_uint64)]),
        ("rilascia", c_int32, [c_uint64]),
        ("trova_membro", c_int32, [c_char_p, POINTER(c_uint32)]),
        ("invoca", c_int32, [c_uint64, c_uint32, c_int32, POINTER(_Valore), c_int32, POINTER(_Valore)]),
        ("ascolta", c_int32, [c_uint64, c_uint32, _Ascoltatore, c_void_p]),
        ("libera", None, [POINTER(_Valore)]),
    ):
        funzione = getattr(libreria, "giacenza_" + nome)
        funzione.restype, funzione.argtypes = risultato, argomenti
    if libreria.giacenza_abi() != ABI:
        raise ImportError("libgiacenza ha un'altra interfaccia binaria")
    return libreria


_libreria = _carica()
versione = _libreria.giacenza_versione().decode()


class Errore(Exception):
    """A call that failed. codice: as in giacenza_tipi.h; sqlstate: empty unless codice is DATABASE."""

    def __init__(self, codice):
        super().__init__(_libreria.giacenza_errore_testo().decode())
        self.codice = codice
        self.sqlstate = _libreria.giacenza_errore_sqlstate().decode()


def _controlla(codice):
    if codice != 0:
        raise Errore(codice)


def _valore(dato):
    if dato is None:
        return _Valore(VUOTO, 0, None)
    if isinstance(dato, bool):
        return _Valore(LOGICO, dato, None)
    if isinstance(dato, int):
        if not -(2**31) <= dato < 2**31:
            raise OverflowError("not a 32-bit integer")
        return _Valore(INTERO, dato, None)
    if not isinstance(dato, str):
        raise TypeError(f"neither a text, an integer nor a truth value: {type(dato).__name__}")
    testo = dato.encode()
    if b"\0" in testo:
        raise ValueError("a text with a zero character")
    return _Valore(TESTO, 0, testo)


class Giacenza:
    """An object of the class. Use it in "with", or call rilascia()."""

    def __init__(self):
        self._oggetto = c_uint64(0)
        self._funzione = None
        # One for the object's whole life: the library may be running it while another function takes its place.
        self._ascoltatore = _Ascoltatore(lambda _oggetto, _utente: self._funzione())
        _controlla(_libreria.giacenza_crea(byref(self._oggetto)))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.rilascia()

    def rilascia(self):
        _controlla(_libreria.giacenza_rilascia(self._oggetto))

    def leggi(self, nome):
        return self._invoca(nome, LEGGI)

    def scrivi(self, nome, dato):
        self._invoca(nome, SCRIVI, dato)

    def chiama(self, nome, *argomenti):
        return self._invoca(nome, METODO, *argomenti)

    def quando_finisce(self, funzione):
        """funzione: called without arguments when the operator has left a screen, in place of the one before."""
        _controlla(_libreria.giacenza_ascolta(self._oggetto, ID_FINE, self._ascoltatore, None))
        self._funzione = funzione

    def _invoca(self, nome, modo, *argomenti):
        id_membro = c_uint32(0)
        _controlla(_libreria.giacenza_trova_membro(nome.encode(), byref(id_membro)))
        valori = (_Valore * len(argomenti))(*map(_valore, argomenti))
        risultato = _Valore()
        _controlla(
            _libreria.giacenza_invoca(self._oggetto, id_membro, modo, valori, len(argomenti), byref(risultato))
        )
        try:
            if risultato.tipo == TESTO:
                return risultato.testo.decode()
            return {INTERO: risultato.intero, LOGICO: bool(risultato.intero)}.get(risultato.tipo)
        finally:
            _libreria.giacenza_libera(byref(risultato))
