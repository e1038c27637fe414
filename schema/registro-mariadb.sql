-- The register on MariaDB 10.11: optional, apart from the depot's tables, filled by triggers, so that what any
-- workstation and any other program does to a held shipment is written down without a change of theirs.
--
-- "deposito --prepara-registro" runs what is missing of this file and then grants what schema/registro-grants.sql
-- says. By hand: the mariadb client understands the file once :definitore is replaced by the definer of the triggers
-- (registro_giacenza, a role: who made the triggers may then leave). The role is made before, with what the end of
-- registro-grants.sql gives it. To take the register away: drop the triggers first, then the tables.
--
-- A version is what runs at once, and once; each statement of it may run again after an interruption. A version that
-- was given out is not changed any more: what follows is a new one.
--
-- A trigger whose own statement fails goes on (the handler): table gone, rights taken, disk full, value too long
-- refuse no save. A deadlock ends the transaction whatever the handler says, and the save is then tried again as
-- any other. What a handler cannot help against is told in docs/security.md.
--
-- Instants are in universal time. user() is the session's user; current_user() would be the definer.

-- versione 1

create table if not exists registro_versione (
    versione integer not null,
    istante datetime(6) not null default (utc_timestamp(6)),
    primary key (versione)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

create table if not exists registro (
    progressivo bigint unsigned not null auto_increment,
    istante datetime(6) not null default (utc_timestamp(6)),
    utente varchar(400) not null default (user()),
    GINRGI varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin,
    GIANGI smallint,
    filiale varchar(10),
    ldv varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin,
    annoldv smallint,
    fatto varchar(20) not null,
    prima mediumtext,
    testo mediumtext,
    primary key (progressivo),
    key registro_caso (GIANGI, GINRGI)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

delimiter //

create or replace definer = :definitore trigger registro_giace_nuova after insert on giace00f for each row
begin
    declare continue handler for sqlexception begin end;
    insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
        values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'registrata', new.GIDES1);
    if coalesce(new.GINRAV, '') <> '' then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'avvisata', new.GINRAV);
    end if;
    if new.GIDTBF is not null then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'chiusa', new.GIDTBF);
    end if;
    if new.GIIMGI is not null or new.FissoGiacenza is not null then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'addebitata',
                concat('sosta=', coalesce(new.GIIMGI, ''), ' fisso=', coalesce(new.FissoGiacenza, '')));
    end if;
end //

create or replace definer = :definitore trigger registro_giace_cambiata after update on giace00f for each row
begin
    declare continue handler for sqlexception begin end;
    if not (old.GINRGI <=> new.GINRGI and old.GIANGI <=> new.GIANGI) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'rinumerata',
                concat(old.GINRGI, '/', old.GIANGI), concat(new.GINRGI, '/', new.GIANGI));
    end if;
    if not (old.GINRAV <=> new.GINRAV) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'avvisata', old.GINRAV, new.GINRAV);
    end if;
    if not (binary old.GIDES1 <=> binary new.GIDES1) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'descrizione', old.GIDES1, new.GIDES1);
    end if;
    if not (old.GIDTBF <=> new.GIDTBF) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV,
                if(new.GIDTBF is null, 'riaperta', 'chiusa'), old.GIDTBF, new.GIDTBF);
    end if;
    if not (old.GIIMGI <=> new.GIIMGI and old.FissoGiacenza <=> new.FissoGiacenza) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'addebitata',
                concat('sosta=', coalesce(old.GIIMGI, ''), ' fisso=', coalesce(old.FissoGiacenza, '')),
                concat('sosta=', coalesce(new.GIIMGI, ''), ' fisso=', coalesce(new.FissoGiacenza, '')));
    end if;
    if not (old.GINRFA <=> new.GINRFA) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.GINRGI, new.GIANGI, new.GIFILI, new.GINRLV, new.GIANLV, 'fatturata', old.GINRFA, new.GINRFA);
    end if;
end //

create or replace definer = :definitore trigger registro_giace_tolta after delete on giace00f for each row
begin
    declare continue handler for sqlexception begin end;
    insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima)
        values (user(), old.GINRGI, old.GIANGI, old.GIFILI, old.GINRLV, old.GIANLV, 'cancellata', old.GIDES1);
end //

create or replace definer = :definitore trigger registro_letve_nuova after insert on letve00f for each row
begin
    declare continue handler for sqlexception begin end;
    if new.LERFGI is not null then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, testo)
            values (user(), new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'riconsegnata', new.lenote);
    end if;
end //

create or replace definer = :definitore trigger registro_letve_cambiata after update on letve00f for each row
begin
    declare continue handler for sqlexception begin end;
    if not (old.LERFGI <=> new.LERFGI and old.LEANGI <=> new.LEANGI) then
        if old.LERFGI is not null then
            insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
                values (user(), old.LERFGI, old.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'scollegata');
        end if;
        if new.LERFGI is not null then
            insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
                values (user(), new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'collegata');
        end if;
    elseif new.LERFGI is not null and new.LEDTCO is not null and not (old.LEDTCO <=> new.LEDTCO) then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto, prima, testo)
            values (user(), new.LERFGI, new.LEANGI, new.lefili, new.lenrlv, new.leanlv, 'consegnata', old.LEDTCO, new.LEDTCO);
    end if;
end //

create or replace definer = :definitore trigger registro_letve_tolta after delete on letve00f for each row
begin
    declare continue handler for sqlexception begin end;
    if old.LERFGI is not null then
        insert into registro (utente, GINRGI, GIANGI, filiale, ldv, annoldv, fatto)
            values (user(), old.LERFGI, old.LEANGI, old.lefili, old.lenrlv, old.leanlv, 'scollegata');
    end if;
end //

delimiter ;

-- versione 2

-- What the clerks write about a case. autore is what the program says, utente what the server knows: the workstations'
-- user may not fill it.
create table if not exists registro_note (
    progressivo bigint unsigned not null auto_increment,
    istante datetime(6) not null default (utc_timestamp(6)),
    utente varchar(400) not null default (user()),
    GINRGI varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin not null,
    GIANGI smallint not null,
    autore varchar(80) not null,
    testo mediumtext not null,
    primary key (progressivo),
    key registro_note_caso (GIANGI, GINRGI)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;
