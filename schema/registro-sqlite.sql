-- The register on SQLite: optional, apart from the depot's tables, filled by triggers, so that what any workstation and
-- any other program does to a held shipment is written down without a change of theirs.
--
-- "deposito --prepara-registro" runs what is missing of this file, each version in one transaction: tables and triggers
-- come together. They go together too: a trigger whose table is gone refuses every save, and SQLite knows no handler.
-- So to take the register away: begin; drop the triggers whose names begin with registro_; drop the tables; commit.
--
-- A version that was given out is not changed any more: what follows is a new one.
--
-- Instants are in universal time. There are no users: who did it is what the program says. printf() without an argument
-- is null in every SQLite; the extension libgiacenza_sqlite lets it give the user's name. So a program without the
-- extension saves as before, and is written down as one.

-- versione 1

create table if not exists registro_versione (
    versione integer primary key,
    istante text not null default (strftime('%Y-%m-%d %H:%M:%f', 'now'))
);

create table if not exists registro (
    progressivo integer primary key autoincrement,
    istante text not null default (strftime('%Y-%m-%d %H:%M:%f', 'now')),
    utente text not null default (coalesce(printf(), 'programma senza nome')),
    GINRGI varchar(20),
    GIANGI integer,
    filiale varchar(10),
    ldv varchar(20),
    annoldv integer,
    fatto varchar(20) not null,
    prima text,
    testo text
);

create index if not exists registro_caso on registro (GIANGI, GINRGI);

create trigger if not exists registro_giace_nuova after insert on giace00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'registrata', new.GIDES1;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'avvisata', new.GINRAV
        where coalesce(new.GINRAV, '') <> '';
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'chiusa', new.GIDTBF
        where new.GIDTBF is not null;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'addebitata',
            'sosta=' || coalesce(new.GIIMGI, '') || ' fisso=' || coalesce(new.FissoGiacenza, '')
        where new.GIIMGI is not null or new.FissoGiacenza is not null;
end;

create trigger if not exists registro_giace_cambiata after update on giace00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'rinumerata',
            old.GINRGI || '/' || old.GIANGI, new.GINRGI || '/' || new.GIANGI
        where old.GINRGI is not new.GINRGI or old.GIANGI is not new.GIANGI;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'avvisata', old.GINRAV, new.GINRAV
        where old.GINRAV is not new.GINRAV;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'descrizione', old.GIDES1, new.GIDES1
        where old.GIDES1 is not new.GIDES1;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV,
            case when new.GIDTBF is null then 'riaperta' else 'chiusa' end, old.GIDTBF, new.GIDTBF
        where old.GIDTBF is not new.GIDTBF;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'addebitata',
            'sosta=' || coalesce(old.GIIMGI, '') || ' fisso=' || coalesce(old.FissoGiacenza, ''),
            'sosta=' || coalesce(new.GIIMGI, '') || ' fisso=' || coalesce(new.FissoGiacenza, '')
        where old.GIIMGI is not new.GIIMGI or old.FissoGiacenza is not new.FissoGiacenza;
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'fatturata', old.GINRFA, new.GINRFA
        where old.GINRFA is not new.GINRFA;
end;

create trigger if not exists registro_giace_tolta after delete on giace00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima)
        select old.GINRGI, old.GIANGI, old.GIFILI, old.GINRLV, old.GIANLV, 'cancellata', old.GIDES1;
end;

create trigger if not exists registro_letve_nuova after insert on letve00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        select new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'riconsegnata', new.lenote
        where new.LERFGI is not null;
end;

create trigger if not exists registro_letve_cambiata after update on letve00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
        select old.LERFGI, old.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'scollegata'
        where old.LERFGI is not null and (old.LERFGI is not new.LERFGI or old.LEANGI is not new.LEANGI);
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
        select new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'collegata'
        where new.LERFGI is not null and (old.LERFGI is not new.LERFGI or old.LEANGI is not new.LEANGI);
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
        select new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'consegnata', old.LEDTCO, new.LEDTCO
        where new.LERFGI is not null and not (old.LERFGI is not new.LERFGI or old.LEANGI is not new.LEANGI)
            and new.LEDTCO is not null and old.LEDTCO is not new.LEDTCO;
end;

create trigger if not exists registro_letve_tolta after delete on letve00f
begin
    insert into registro (GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
        select old.LERFGI, old.LEANGI, old.lefili, old.lenrlv, old.leanlv, 'scollegata'
        where old.LERFGI is not null;
end;

create trigger if not exists registro_non_cambia before update on registro
begin
    select raise(abort, 'Le righe di registro non si cambiano.');
end;

create trigger if not exists registro_non_si_toglie before delete on registro
begin
    select raise(abort, 'Le righe di registro non si cancellano.');
end;

-- "insert or replace" would take the old row away without telling the trigger above.
create trigger if not exists registro_non_si_sostituisce before insert on registro
    when exists (select 1 from registro where progressivo = new.progressivo)
begin
    select raise(abort, 'Le righe di registro non si sostituiscono.');
end;

-- versione 2

-- What the clerks write about a case: autore is who the program says wrote it.
create table if not exists registro_note (
    progressivo integer primary key autoincrement,
    istante text not null default (strftime('%Y-%m-%d %H:%M:%f', 'now')),
    utente text not null default (coalesce(printf(), 'programma senza nome')),
    GINRGI varchar(20) not null,
    GIANGI integer not null,
    autore varchar(80) not null,
    testo text not null
);

create index if not exists registro_note_caso on registro_note (GIANGI, GINRGI);

create trigger if not exists registro_note_non_cambia before update on registro_note
begin
    select raise(abort, 'Le righe di registro_note non si cambiano.');
end;

create trigger if not exists registro_note_non_si_toglie before delete on registro_note
begin
    select raise(abort, 'Le righe di registro_note non si cancellano.');
end;

-- "insert or replace" would take the old row away without telling the trigger above.
create trigger if not exists registro_note_non_si_sostituisce before insert on registro_note
    when exists (select 1 from registro_note where progressivo = new.progressivo)
begin
    select raise(abort, 'Le righe di registro_note non si sostituiscono.');
end;

-- versione 3

-- Before an insert new.progressivo is -1 where none is given: a row of that number would pass for the one that every
-- later insert replaces, and so refuse every save. Such numbers are refused, and the one that may stand there is passed by.

drop trigger if exists registro_non_si_sostituisce;

create trigger if not exists registro_non_si_sostituisce before insert on registro
    when new.progressivo <> -1 and exists (select 1 from registro where progressivo = new.progressivo)
begin
    select raise(abort, 'Le righe di registro non si sostituiscono.');
end;

create trigger if not exists registro_numero_positivo after insert on registro
    when new.progressivo < 1
begin
    select raise(abort, 'I numeri delle righe di registro cominciano da 1.');
end;

drop trigger if exists registro_note_non_si_sostituisce;

create trigger if not exists registro_note_non_si_sostituisce before insert on registro_note
    when new.progressivo <> -1 and exists (select 1 from registro_note where progressivo = new.progressivo)
begin
    select raise(abort, 'Le righe di registro_note non si sostituiscono.');
end;

create trigger if not exists registro_note_numero_positivo after insert on registro_note
    when new.progressivo < 1
begin
    select raise(abort, 'I numeri delle righe di registro_note cominciano da 1.');
end;
