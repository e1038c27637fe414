-- What the database user of the workstations may do on MariaDB: what the statements of the component do,
-- and nothing else. An administrator makes the user first (create user), then runs this file with two
-- texts put in the place of the names that start with a colon:
--   :base    the database, as an identifier between backticks
--   :utente  the account: user, @ and host, each between apostrophes
--
-- What this user can do all the same, and what a depot can do about it, is in docs/security.md.
--
-- Every statement ends with a semicolon at the end of a line, and no other line ends with one.

grant select on :base.letve00f to :utente;
grant select on :base.giace00f to :utente;
grant select on :base.clien to :utente;
grant select on :base.filiali to :utente;
grant select on :base.forni to :utente;
grant select on :base.codicizona to :utente;
grant select on :base.tabfatturazione to :utente;
grant select on :base.porto to :utente;
grant select on :base.ekelvorqzt_tabge00f to :utente;

-- A held shipment is added, noticed, charged and closed. Its keys and its holder are never changed, and its
-- invoice is the host's business: the user may not even add one with it.
grant insert (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GINRGI, GIANGI, GIDTGI, GIGGSO, GIDTAV, GIDES1, GIDTBF,
    GIIMGI, GIVNRG, GIVDTG) on :base.giace00f to :utente;
grant update (GINRAV, GIDTAV, GIDES1, GIDTBF, GIGGSO, GIIMGI, FissoGiacenza) on :base.giace00f to :utente;

-- The save links the waybill to its held shipment, and takes the number from the counter.
grant update (LERFGI, LEANGI, LEDTCO) on :base.letve00f to :utente;
grant update (UltimoNumGiacenza) on :base.ekelvorqzt_tabge00f to :utente;

-- The waybill issuer of the host works with the connection string of the component, so it is the same
-- user: it adds the waybill of a re-delivery or of a return. A host whose issuer connects by itself
-- leaves this one out.
grant insert (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, ledest, leindd, lecapd, lelocd, leprod, lerico,
    lecdve, lelin1, lenatu, lerife, lerifd, leport, lecoll, lepeso, levolu, lecnss, leanpc, lenote, levame,
    LERFGI, LEANGI) on :base.letve00f to :utente;
