-- The depot database on MariaDB 10.11, as the component reads and writes it. The server runs with
-- lower_case_table_names=1, since statements write table names in mixed case.
--
-- Every statement ends with a semicolon at the end of a line, and no other line ends with one.
--
-- Kinds of columns. Waybill and held-shipment numbers are text compared byte by byte, without padding:
-- "0123" is not "123". Other codes, references and names compare without case. Customer codes and years
-- are integers, since statements write them bare as often as between apostrophes. No foreign keys: a
-- waybill may name a branch, a line, a carrier or a customer that has no row, and a held waybill may
-- carry a year that is not the one of its date.

create table filiali (
    codice varchar(10) not null,
    descrizione varchar(60) not null,
    Indirizzo varchar(80),
    `Località` varchar(60),
    provincia varchar(2),
    primary key (codice)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

create table clien (
    Codice integer not null,
    RagioneSociale varchar(80) not null,
    Indirizzo varchar(80),
    Localita varchar(60),
    Provincia varchar(2),
    CLCAP varchar(10),
    PartitaIva varchar(11),
    primary key (Codice),
    key clien_ragione (RagioneSociale),
    key clien_iva (PartitaIva)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

create table forni (
    Codice varchar(10) not null,
    RagioneSociale varchar(80) not null,
    Indirizzo varchar(80),
    Localita varchar(60),
    Provincia varchar(2),
    PartitaIva varchar(11),
    primary key (Codice)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

create table codicizona (
    Codice varchar(10) not null,
    Descrizione varchar(60) not null,
    primary key (Codice)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

-- The freight terms: idPorto goes from 1 to the number of rows without a gap, since a waybill holds the
-- row of the list. The third row is the one preset for a return.
create table porto (
    idPorto integer not null,
    Descrizione varchar(40) not null,
    primary key (idPorto)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

-- Billing terms. FALCOD C: those of a customer. Storage: FADFGI fixed fee, FAFRGI free days, FATGIG
-- charge for each day, FAMIGI minimum.
create table tabfatturazione (
    FALCOD varchar(1) not null,
    FACODI integer not null,
    FACMPE varchar(4) not null,
    FAIVA varchar(4),
    FADFGI decimal(12,4),
    FAFRGI decimal(8,4),
    FATGIG decimal(12,4),
    FAMIGI decimal(12,4),
    primary key (FALCOD, FACODI, FACMPE)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

-- The general settings, one row: the key lets no second one in.
create table ekelvorqzt_tabge00f (
    Riga tinyint not null default 1 check (Riga = 1),
    UltimoNumGiacenza bigint,
    IstrSuAvvGiac text,
    UltimoNumBordereau integer,
    DataBorderau date,
    primary key (Riga)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

-- The number leads every key in which the branch stands too: a depot may have but one branch, and a key that
-- starts with it would then pass for a way to the row while it reads the table. letve_cliente_lettera is for the
-- list of a customer's held shipments: without it all of the depot's are read for a customer with many waybills.
--
-- lenrlv_numero is the number of a waybill whose number is digits only: with its index, who issues a waybill
-- finds the highest of the year without reading the year. It is invisible, so that no "select *" and no insert
-- without names sees it; the component works without it too. A host whose table is there already adds it with
--   alter table letve00f add lenrlv_numero ... (as below), add key letve_numerico (leanlv, lenrlv_numero)
-- Its expression holds no pattern whose meaning a setting of the session could change.
create table letve00f (
    lefili varchar(10) not null,
    lenrlv varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin not null,
    leanlv smallint not null,
    ledtlv date not null,
    lecodi integer not null,
    lecmpe varchar(4),
    ledest varchar(80),
    leindd varchar(80),
    lecapd varchar(10),
    lelocd varchar(60),
    leprod varchar(2),
    lerico varchar(1),
    lecdve varchar(10),
    lelin1 varchar(10),
    lenatu varchar(60),
    lerife varchar(60),
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
    LERFGI varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin,
    LEANGI smallint,
    LEDTCO date,
    lenrlv_numero bigint unsigned generated always as (
        case when char_length(lenrlv) between 1 and 18 and lenrlv not regexp '[^0-9]'
            then cast(lenrlv as unsigned) end
    ) virtual invisible,
    primary key (lenrlv, leanlv, lefili),
    key letve_numero (lenrlv, ledtlv, lefili),
    key letve_riferimento (lerife, lerifd, lefili),
    key letve_cliente (lecodi, lefili, lerife, ledtlv),
    key letve_cliente_lettera (lecodi, lenrlv, leanlv, lefili),
    key letve_giacenza (LERFGI, LEANGI, lefili),
    key letve_anno (leanlv, lenrlv),
    key letve_numerico (leanlv, lenrlv_numero)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;

-- The year comes first in the unique key of the held shipment, so that the list of a year finds it too.
-- The number stands alone with its date in giace_data. giace_aperte finds the open cases (GIDTBF null) from the one that is
-- held longest, and giace_giacenza a number without its year: both serve the desk, which works without them.
-- giace_cliente is for the statement of a customer's cases.
create table giace00f (
    GIFILI varchar(10) not null,
    GINRLV varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin not null,
    GIANLV smallint not null,
    GICODI integer,
    GIFIGI varchar(10),
    GINRGI varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin not null,
    GIANGI smallint not null,
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
    GIVNRG varchar(20) character set utf8mb4 collate utf8mb4_nopad_bin,
    GIVDTG date,
    primary key (GINRLV, GIANLV, GIFILI),
    unique key giace_numero (GIANGI, GINRGI),
    key giace_data (GIDTGI, GINRGI),
    key giace_aperte (GIDTBF, GIDTGI, GINRGI),
    key giace_giacenza (GINRGI),
    key giace_cliente (GICODI, GIDTGI)
) engine = InnoDB default charset = utf8mb4 collate = utf8mb4_general_nopad_ci;
