 tr	
(  ) tr
