#include "desk/casi.h"

#include "support/spedizioni.h"

namespace giacenza::prove {

void riempiCasi(const BancaDati& base)
{
    riempiDeposito(base);
    base.esegui(QStringLiteral(R"(
insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) values ('C',1001,'A',2.5000,5,1.5000,4.0000);
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,lelocd,leprod,lecdve,lelin1,lerife,lecoll,lepeso,LERFGI,LEANGI) values
 ('MI','4721',2026,'2026-11-12',1001,'A','Utensileria del Lago','Como','CO','V01','L05','ORD-901',3,45.50,'41',2026),
 ('MI','4722',2026,'2026-11-05',1001,'A','Bar Centrale','Lecco','LC','V01','L05','ORD-902',1,12.00,'42',2026),
 ('MI','4723',2026,'2026-11-13',1001,'A','Casalinghi Rossi','Monza','MB','V01','L05','ORD-903',2,7.25,'43',2026),
 ('MI','4724',2026,'2026-10-28',1002,'B','Ristorante La Rotonda','Erba','CO','V01','L05','FT 17',10,300.00,'44',2026),
 ('MI','4725',2026,'2026-11-13',1002,'B','Enoteca Bianchi','Bologna','BO','V01','L05','FT 18',4,80.00,'45',2026);
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lerico,ledest,lelocd,leflbc,lenote,LERFGI,LEANGI) values
 ('MI','4730',2026,'2026-11-13',1001,'R','Bar Centrale','Lecco','1','Riconsegna a Destinatario - giacenza 42/2026','42',2026),
 ('MI','4731',2026,'2026-11-14',1001,'R','Ferramenta Lombarda S.r.l.','Monza',null,'Reso a Mittente - giacenza 42/2026','42',2026);
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GINRAV,GIDTAV,GIDES1) values
 ('MI','4721',2026,1001,'MI','41',2026,'2026-11-18',null,null,'18/11/2026 - Assente'),
 ('MI','4722',2026,1001,'MI','42',2026,'2026-11-10','2','2026-11-12','10/11/2026 - Chiuso per ferie'),
 ('MI','4723',2026,1001,null,'43',2026,'2026-11-16','1','2026-11-16','16/11/2026 - Indirizzo errato'),
 ('MI','4724',2026,1002,'MI','44',2026,'2026-11-01','1','2026-11-02','01/11/2026 - Rifiutata'),
 ('MI','4725',2026,1002,'BO','45',2026,'2026-11-15','1','2026-11-15','L''imballo e l''etichetta');
)"));
}

} // namespace giacenza::prove
