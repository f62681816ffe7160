set -g _HIP_SAVEVERSION = '19.5.303'
out/ris1.parm {
ri_display_0	[ 0	locks=0 ]	(	"$HIP/render/ris1.$F4.exr"	)
rib_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/rib/ris1.$F4.rib"	)
}
out/ris2.parm {
diskfile	[ 0	locks=0 ]	(	"on"	)
ri_display	[ 0	locks=0 ]	(	"$HIP/render/ris2.$F4.exr"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/rib/ris2.$F4.rib"	)
}
