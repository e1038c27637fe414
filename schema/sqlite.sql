-- The depot database on SQLite, with the same tables and rules as on MariaDB. Who creates the file also
-- sets the write-ahead journal (pragma journal_mode = wal), which stays with the file.
--
-- Every statement ends with a semicolon at the end of a line, and no other line ends with one.
--
-- Kinds of columns. Waybill and held-shipment numbers are text compared byte by byte: "0123" is not
-- "123". Other codes, references and names compare without case. Customer codes and years are integers.
-- Dates are text "yyyy-mm-dd". No index uses year(), which is there only while its extension is loaded.

create table filiali (
    codice varchar(10) not null collate nocase primary key,
    descrizione varchar(60) not null,
    Indirizzo varchar(80),
    "Località" varchar(60),
    provincia varchar(2)
);

create table clien (
    Codice integer not null primary key,
    RagioneSociale varchar(80) not null collate nocase,
    Indirizzo varchar(80),
    Localita varchar(60) collate nocase,
    Provincia varchar(2) collate nocase,
    CLCAP varchar(10),
    PartitaIva varchar(11)
);

create table forni (
    Codice varchar(10) not null collate nocase primary key,
    RagioneSociale varchar(80) not null collate nocase,
    Indirizzo varchar(80),
    Localita varchar(60) collate nocase,
    Provincia varchar(2) collate nocase,
    PartitaIva varchar(11)
);

create table codicizona (
    Codice varchar(10) not null collate nocase primary key,
    Descrizione varchar(60) not null
);

-- The freight terms: idPorto goes from 1 to the number of rows without a gap, since a waybill holds the
-- row of the list. The third row is the one preset for a return.
create table porto (
    idPorto integer not null primary key,
    Descrizione varchar(40) not null
);

-- Billing terms. FALCOD C: those of a customer. Storage: FADFGI fixed fee, FAFRGI free days, FATGIG
-- charge for each day, FAMIGI minimum.
create table tabfatturazione (
    FALCOD varchar(1) not null collate nocase,
    FACODI integer not null,
    FACMPE varchar(4) not null collate nocase,
    FAIVA varchar(4),
    FADFGI decimal(12,4),
    FAFRGI decimal(8,4),
    FATGIG decimal(12,4),
    FAMIGI decimal(12,4),
    primary key (FALCOD, FACODI, FACMPE)
);

-- The general settings, one row: the key lets no second one in.
create table ekelvorqzt_tabge00f (
    Riga integer not null default 1 check (Riga = 1) unique,
    UltimoNumGiacenza bigint,
    IstrSuAvvGiac text,
    UltimoNumBordereau integer,
    DataBorderau date
);

-- The number leads every key in which the branch stands too: a depot may have but one branch, and a key that
-- starts with it would then pass for a way to the row while it reads the table.
create table letve00f (
    lefili varchar(10) not null collate nocase,
    lenrlv varchar(20) not null,
    leanlv integer not null,
    ledtlv date not null,
    lecodi integer not null,
    lecmpe varchar(4) collate nocase,
    ledest varchar(80),
    leindd varchar(80),
    lecapd varchar(10),
    lelocd varchar(60),
    leprod varchar(2),
    lerico varchar(1) collate nocase,
    lecdve varchar(10) collate nocase,
    lelin1 varchar(10) collate nocase,
    lenatu varchar(60),
    lerife varchar(60) collate nocase,
    lerifd date,
    leport integer,
    lecoll integer,
    lepeso decimal(12,2),
    levolu decimal(12,3),
    lecnss decimal(12,2),
    leanpc decimal(12,2),
    lenote text,
    levame decimal(12,2),
    leflbc varchar(1),
    LERFGI varchar(20),
    LEANGI integer,
    LEDTCO date,
    primary key (lenrlv, leanlv, lefili)
);

create index letve_numero on letve00f (lenrlv, ledtlv, lefili);

create index letve_riferimento on letve00f (lerife, lerifd, lefili);

create index letve_cliente on letve00f (lecodi, lefili, lerife, ledtlv);

create index letve_giacenza on letve00f (LERFGI, LEANGI, lefili);

-- The list by waybill number comes in the order of the number, without a sort. The expression is matched
-- letter for letter: unsigned stays in lower case.
create index letve_cliente_numero on letve00f (lecodi, lefili, cast(lenrlv as unsigned), leanlv);

create index letve_anno on letve00f (leanlv, cast(lenrlv as unsigned));

-- The year comes first in the unique key of the held shipment, so that the list of a year finds it too.
-- The number stands alone with its date in giace_data. giace_cliente is for the statement of a customer's cases.
create table giace00f (
    GIFILI varchar(10) not null collate nocase,
    GINRLV varchar(20) not null,
    GIANLV integer not null,
    GICODI integer,
    GIFIGI varchar(10) collate nocase,
    GINRGI varchar(20) not null,
    GIANGI integer not null,
    GIDTGI date,
    GIGGSO integer,
    GINRAV varchar(5),
    GIDTAV date,
    GIDES1 text,
    GIDTBF date,
    GIIMGI decimal(12,2),
    FissoGiacenza decimal(12,2),
    GINRFA varchar(20),
    GIDTFA date,
    GICOFA varchar(10),
    GIVNRG varchar(20),
    GIVDTG date,
    primary key (GINRLV, GIANLV, GIFILI)
);

create unique index giace_numero on giace00f (GIANGI, GINRGI);

create index giace_data on giace00f (GIDTGI, GINRGI);

-- The open cases alone, for the desk: what is closed leaves it.
create index giace_aperte on giace00f (GIDTBF, GIDTGI, GINRGI) where GIDTBF is null;

create index giace_giacenza on giace00f (GINRGI);
create index giace_cliente on giace00f (GICODI, GIDTGI);

create index clien_ragione on clien (RagioneSociale);

create index clien_iva on clien (PartitaIva);
