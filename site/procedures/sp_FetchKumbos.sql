-- The multiplexers on a port.
-- parameter @PortID int
-- result KumboID int
-- result KumboName nvarchar(100)
-- result Address nvarchar(128)
select KumboID, KumboName, Address
from Kumbos
where PortID = @PortID
order by KumboID
